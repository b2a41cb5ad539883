#include "platform/report/FontTable.h"

#include <algorithm>

quint16 FontTable::Add(const FontSpec& font)
{
    const auto known = std::find(m_fonts.begin(), m_fonts.end(), font);
    const std::ptrdiff_t index = known - m_fonts.begin();
    if (known == m_fonts.end())
        m_fonts.push_back(font);
    return static_cast<quint16>(index);
}
