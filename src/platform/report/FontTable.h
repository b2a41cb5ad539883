#pragma once

#include <QString>

#include <vector>

// A font of a report's pages.
struct FontSpec {
    QString family;
    float size = 10; // points
    bool isBold = false;
    bool operator==(const FontSpec&) const = default;
};

// The fonts of a report's pages, each once.
class FontTable {
public:
    // The position of a font; it is put in if it isn't there.
    quint16 Add(const FontSpec& font);
    const FontSpec& At(quint16 index) const { return m_fonts[index]; }

private:
    std::vector<FontSpec> m_fonts;
};
