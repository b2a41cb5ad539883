#pragma once

#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

// What ended a script early. A test that doesn't look at it fails if there was anything: what it asks for
// behind a script that broke off may hold by chance.
class KeptFailure {
public:
    KeptFailure() = default;
    KeptFailure(const KeptFailure&) = delete;
    ~KeptFailure() { Tell(); }

    // Keeps how the next script ended; the one before it has to be looked at by then.
    KeptFailure& operator=(std::optional<RunTimeError> failure)
    {
        Tell();
        m_failure = std::move(failure);
        m_isLookedAt = false;
        return *this;
    }

    explicit operator bool() const { return Look().has_value(); }
    const RunTimeError* operator->() const { return &Look().value(); }
    bool has_value() const { return Look().has_value(); }
    void reset() { m_failure.reset(); }

private:
    const std::optional<RunTimeError>& Look() const
    {
        m_isLookedAt = true;
        return m_failure;
    }

    void Tell() const
    {
        if (m_failure && !m_isLookedAt)
            ADD_FAILURE() << "the script broke off: " << m_failure->what();
    }

    std::optional<RunTimeError> m_failure;
    mutable bool m_isLookedAt = false;
};
