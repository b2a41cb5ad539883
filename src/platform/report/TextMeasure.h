#pragma once

#include "platform/report/FontTable.h"

#include <memory>
#include <vector>

// A text or a piece of one, and its height in points.
struct MeasuredText {
    QString text;
    float height = 0;
};

// Measures texts with the same layouts that pages are drawn with.
class TextMeasure {
public:
    TextMeasure();
    ~TextMeasure();
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    // The height of a line, with room for signs above and below the letters.
    float LineHeight(const FontSpec& font);

    // The height of a text that is broken into lines of a width.
    float Height(const FontSpec& font, const QString& text, float width);

    // Divides a text into pieces that follow each other downwards: a short text is one piece, a long one has
    // pieces of some lines each. At the end of a page only one piece has to be split and measured again, so
    // the time for a text of many pages grows with its length and not with its square. A line break between
    // two pieces is in neither of them.
    std::vector<MeasuredText> Divide(const FontSpec& font, const QString& text, float width);

    // How many characters of a piece fit into a height; at least those of the first line.
    qsizetype Fitting(const FontSpec& font, const QString& text, float width, float height);

    // How many characters Pango has laid out so far, which is what measuring costs.
    qsizetype LaidOut() const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
