#pragma once

#include "ReportPages.h"

#include <memory>

// Measures texts the way the pages are drawn: one layout a font is kept and used again.
class TextMeasure {
public:
    TextMeasure();
    ~TextMeasure();
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    // The height of one line, with room for the signs above and below the letters.
    float LineHeight(const FontSpec& font);

    // The height of a text that breaks into lines of a width.
    float Height(const FontSpec& font, const QString& text, float width);

    // How many characters of a text stand on the lines that fit into a height; at least those of one line.
    qsizetype Fitting(const FontSpec& font, const QString& text, float width, float height);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
