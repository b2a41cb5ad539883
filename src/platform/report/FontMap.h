#pragma once

#include <QString>

#include <memory>

using PangoFontMap = struct _PangoFontMap;

// The fonts of the machine, found once a process. The engine's own map of them would never be given back. It
// looks for fonts in threads of its own; a program that ended before that was done would end under its feet.
// The map goes with the application, or with the last that still holds it then.
class FontMap {
public:
    FontMap();
    ~FontMap();
    FontMap(const FontMap&) = delete;
    FontMap& operator=(const FontMap&) = delete;

    static std::shared_ptr<FontMap> Current();

    PangoFontMap* Get() const { return m_map; }

    // Whether fonts of that name are installed; another that would be taken instead doesn't count.
    bool Has(const QString& family) const;

private:
    PangoFontMap* m_map;
    const bool m_hasWindows;
};
