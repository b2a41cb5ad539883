#pragma once

#include <QtGlobal>

#include <optional>

enum class Align : quint8 { Left, Center, Right };

// How a text looks. What isn't set is taken from the surroundings.
struct TextLook {
    std::optional<Align> align;
    std::optional<bool> isBold;
    double size = 0; // points; 0: not set
};
