#pragma once

#include <QtGlobal>

#include <optional>

enum class Align : quint8 { Left, Center, Right };

// How a text of a template looks; what isn't said is taken from what stands around it.
struct TextLook {
    std::optional<Align> align;
    std::optional<bool> isBold;
    double size = 0; // points; 0: as around it
};
