// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/event_shrinker.h"

#include "reliability/designer_session.h"

namespace morvel::reliability {

namespace {

// The rule a message names, without the values that differ from run to run.
std::string ruleOf(const std::string& message) {
    return message.substr(0, message.find('"'));
}

} // namespace

std::optional<Failure> replay(const std::vector<Event>& events) {
    DesignerSession session;
    for (std::size_t i = 0; i < events.size(); ++i)
        if (auto broken = session.apply(events[i]))
            return Failure{i, *broken};
    return std::nullopt;
}

std::vector<Event> shrink(std::vector<Event> events, const Failure& failure,
                          std::chrono::seconds budget) {
    const auto deadline = std::chrono::steady_clock::now() + budget;
    const std::string rule = ruleOf(failure.message);
    events.resize(failure.index + 1);
    // Keeps candidate when it still breaks the rule, cut after the event that breaks it.
    auto stillFails = [&](std::vector<Event>& candidate) {
        const auto result = replay(candidate);
        if (!result || ruleOf(result->message) != rule)
            return false;
        candidate.resize(result->index + 1);
        return true;
    };

    for (std::size_t chunk = std::max<std::size_t>(events.size() / 2, 1); chunk >= 1;) {
        bool removed = false;
        for (std::size_t start = 0; start < events.size();) {
            if (std::chrono::steady_clock::now() > deadline)
                return events;
            std::vector<Event> candidate(events.begin(),
                                         events.begin() + static_cast<std::ptrdiff_t>(start));
            candidate.insert(candidate.end(),
                             events.begin() + static_cast<std::ptrdiff_t>(
                                                  std::min(start + chunk, events.size())),
                             events.end());
            if (stillFails(candidate)) {
                events = std::move(candidate);
                removed = true;
            } else {
                start += chunk;
            }
        }
        if (chunk == 1 && !removed)
            break;
        if (!removed)
            chunk /= 2;
        chunk = std::min(chunk, std::max<std::size_t>(events.size() / 2, 1));
    }

    // Then the steps inside the editors, one by one.
    for (std::size_t i = 0; i < events.size(); ++i) {
        for (std::size_t step = 0; step < events[i].steps.size();) {
            if (std::chrono::steady_clock::now() > deadline)
                return events;
            std::vector<Event> candidate = events;
            candidate[i].steps.erase(candidate[i].steps.begin() +
                                     static_cast<std::ptrdiff_t>(step));
            if (stillFails(candidate) && candidate.size() == events.size())
                events = std::move(candidate);
            else
                ++step;
        }
    }
    return events;
}

} // namespace morvel::reliability
