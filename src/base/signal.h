// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace morvel {

namespace detail {
struct SlotState {
    bool connected = true;
};
} // namespace detail

// A subscription to a Signal. It disconnects when destroyed, so an observer that goes away can
// never be called again; there is no separate remove call to forget.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::weak_ptr<detail::SlotState> slot)
        : m_slot(std::move(slot)) {}
    Connection(Connection&& other) noexcept
        : m_slot(std::exchange(other.m_slot, {})) {}
    Connection& operator=(Connection&& other) noexcept {
        if (this != &other) {
            disconnect();
            m_slot = std::exchange(other.m_slot, {});
        }
        return *this;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { disconnect(); }

    void disconnect() {
        if (auto slot = m_slot.lock())
            slot->connected = false;
        m_slot.reset();
    }
    bool connected() const {
        auto slot = m_slot.lock();
        return slot && slot->connected;
    }

private:
    std::weak_ptr<detail::SlotState> m_slot;
};

// Keeps many connections for the life of their owner.
class Connections {
public:
    Connections& operator+=(Connection connection) {
        m_connections.push_back(std::move(connection));
        return *this;
    }
    void clear() { m_connections.clear(); }

private:
    std::vector<Connection> m_connections;
};

// A synchronous notification with any number of observers. Emitting is re-entrant: an observer
// may emit the same signal again, connect new observers (they are called from the next emit on)
// or disconnect any observer (it is not called again, even later in the same emit).
template <typename... Args> class Signal {
public:
    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    [[nodiscard]] Connection connect(std::function<void(Args...)> handler) {
        compactIfIdle();
        auto slot = std::make_shared<Slot>();
        slot->handler = std::move(handler);
        m_slots.push_back(slot);
        return Connection(std::weak_ptr<detail::SlotState>(slot));
    }

    // Calls every connected observer in connection order. An observer that throws ends the
    // emission; the exception reaches the emitter and the signal stays usable.
    void notify(Args... args) {
        if (m_slots.empty())
            return;
        EmittingScope scope(*this);
        const std::size_t count = m_slots.size();
        for (std::size_t i = 0; i < count; ++i) {
            std::shared_ptr<Slot> slot = m_slots[i];
            if (slot->connected)
                slot->handler(args...);
        }
    }

    bool empty() const { return m_slots.empty(); }

private:
    struct Slot : detail::SlotState {
        std::function<void(Args...)> handler;
    };

    // Counts a running emission and, when the outermost one ends (normally or by an exception),
    // drops the observers that were disconnected during it.
    class EmittingScope {
    public:
        explicit EmittingScope(Signal& signal)
            : m_signal(signal) {
            ++m_signal.m_emitting;
        }
        EmittingScope(const EmittingScope&) = delete;
        EmittingScope& operator=(const EmittingScope&) = delete;
        ~EmittingScope() {
            --m_signal.m_emitting;
            m_signal.compactIfIdle();
        }

    private:
        Signal& m_signal;
    };

    void compactIfIdle() {
        if (m_emitting != 0)
            return;
        std::erase_if(m_slots, [](const std::shared_ptr<Slot>& slot) { return !slot->connected; });
    }

    std::vector<std::shared_ptr<Slot>> m_slots;
    int m_emitting = 0;
};

} // namespace morvel
