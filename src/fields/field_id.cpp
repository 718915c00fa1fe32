// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_id.h"

#include <atomic>

namespace morvel {

namespace {
// The last identity given or reserved. Fields may be made on a loading thread, hence atomic.
std::atomic<std::uint64_t>& lastId() {
    static std::atomic<std::uint64_t> last{0};
    return last;
}
} // namespace

FieldId FieldId::fresh() {
    return FieldId(lastId().fetch_add(1, std::memory_order_relaxed) + 1);
}

void FieldId::reserve(FieldId id) {
    std::uint64_t last = lastId().load(std::memory_order_relaxed);
    while (last < id.value() &&
           !lastId().compare_exchange_weak(last, id.value(), std::memory_order_relaxed)) {
    }
}

} // namespace morvel
