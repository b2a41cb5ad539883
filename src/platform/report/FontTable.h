#pragma once

#include <QString>

#include <vector>

// A font that a report uses.
struct FontSpec {
    QString family;
    float size = 10; // points
    bool isBold = false;
    bool operator==(const FontSpec&) const = default;
};

// All fonts of a report, so that an item on a page needs only an index.
class FontTable {
public:
    // The index of a font, which is added if it is new.
    quint16 Add(const FontSpec& font);
    const FontSpec& At(quint16 index) const { return m_fonts[index]; }

private:
    std::vector<FontSpec> m_fonts;
};
