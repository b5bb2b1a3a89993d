#include "web/host/TextTable.h"

namespace host {

namespace {

constexpr TextRow kRows[]{
#include "web/tables/TextTable.inc"
};

}  // namespace

std::span<const TextRow> TextTable() {
    return kRows;
}

}  // namespace host
