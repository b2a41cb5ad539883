#include "platform/shell/Fonts.h"

#include <QFontDatabase>

QString ChooseDevanagariFamily(const QStringList& families)
{
    for (const QString& wanted :
        {QStringLiteral("Noto Sans Devanagari"), QStringLiteral("Lohit Devanagari")}) {
        if (families.contains(wanted))
            return wanted;
    }
    return families.value(0);
}

QString DevanagariFontFamily()
{
    return ChooseDevanagariFamily(QFontDatabase::families(QFontDatabase::Devanagari));
}
