#include "imb/EncodeIntelligentMail.h"
#include "tests/VectorCalls.h"

namespace linewright {

namespace {

const bool kRegistered = RegisterCalls({
    {"ImbErrorMessage",
     [](const Row& row) {
         const auto result = static_cast<ImbResult>(row.fields.At("value").get<int>());
         return Outcome{.result = ImbErrorMessage(result)};
     }},
});

}  // namespace

}  // namespace linewright
