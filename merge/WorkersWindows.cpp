#include "merge/Failure.h"
#include "merge/Workers.h"

namespace linewright {

// A process cannot be copied here.

struct Workers::Worker {};

Workers::Workers(unsigned, AnswerTaker& taker, const Work&) : answers(taker) {
    throw Failure("--jobs is for Linux; on Windows --shard divides the work among processes");
}

Workers::~Workers() = default;

void Workers::Give(const Chunk&) {}
void Workers::TakeUntilInput() {}
void Workers::TakeAll() {}

}  // namespace linewright
