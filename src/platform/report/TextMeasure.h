#pragma once

#include "platform/report/FontTable.h"

#include <memory>
#include <vector>

// A text, or a piece of one, with its height in points.
struct MeasuredText {
    QString text;
    float height = 0;
};

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

    // The same text as pieces that stand one below the other: a short one whole, a long one in pieces of some
    // lines each. Whoever cuts it at the end of a page has to look at one piece only, so that all of it is
    // laid out in a time that grows with its length. The end of a line between two pieces is in neither.
    std::vector<MeasuredText> Divide(const FontSpec& font, const QString& text, float width);

    // How many characters of a piece stand on the lines that fit into a height; at least those of one line.
    qsizetype Fitting(const FontSpec& font, const QString& text, float width, float height);

    // How many characters the text engine has been given so far, which is what measuring costs.
    qsizetype LaidOut() const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
