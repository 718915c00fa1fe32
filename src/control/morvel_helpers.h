#pragma once

#include "view/control.h"

#include <initializer_list>
#include <utility>

namespace morvel::control {

// Sets a flag for the life of the guard and restores what it was, also when an exception
// leaves the scope.
class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag)
        : m_flag(flag)
        , m_previous(std::exchange(flag, true)) {}
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;
    ~ScopedFlag() { m_flag = m_previous; }

private:
    bool& m_flag;
    bool m_previous;
};

inline void setAllVisible(std::initializer_list<view::Control*> controls, bool visible) {
    for (view::Control* control : controls)
        control->setVisible(visible);
}

inline void setAllEnabled(std::initializer_list<view::Control*> controls, bool enabled) {
    for (view::Control* control : controls)
        control->setEnabled(enabled);
}

} // namespace morvel::control
