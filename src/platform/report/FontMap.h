#pragma once

#include <QString>

#include <memory>

using PangoFontMap = struct _PangoFontMap;

// The fonts of this machine, found once a process. Pango has a map of its own, but never frees it, and it
// looks for fonts in background threads: a process that ends before they do crashes. This map goes with the
// application, or with the last object that still uses it.
class FontMap {
public:
    FontMap();
    ~FontMap();
    FontMap(const FontMap&) = delete;
    FontMap& operator=(const FontMap&) = delete;

    static std::shared_ptr<FontMap> Current();

    PangoFontMap* Get() const { return m_map; }

    // True if a font of that name is installed, and not just a substitute for it.
    bool Has(const QString& family) const;

private:
    PangoFontMap* m_map;
    const bool m_hasWindows;
};
