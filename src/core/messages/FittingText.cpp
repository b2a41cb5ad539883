#include "core/messages/FittingText.h"

#include <QFontMetrics>

#include <algorithm>

QString BreakableText(QStringView text)
{
    constexpr int longestWord = 30;
    constexpr QChar breakHere(0x200B);

    QString breakable;
    int word = 0;
    for (const QChar c : text) {
        word = c.isSpace() ? 0 : word + 1;
        if (word > longestWord && !c.isLowSurrogate() && !c.isMark())
            breakable += breakHere;
        breakable += c;
    }
    return breakable;
}

QString FittingText(const QString& text, const QFontMetrics& metrics, QSize space)
{
    constexpr QChar leftOut(0x2026);
    const auto fits = [&](const QString& shown) {
        return metrics.boundingRect(QRect(0, 0, space.width(), 0), Qt::TextWordWrap, shown).height()
            <= space.height();
    };
    constexpr qsizetype longest = 5000;
    QString shown = BreakableText(QStringView(text).left(longest));
    if (text.size() <= longest && fits(shown))
        return shown;
    for (qsizetype length = std::min(text.size(), longest); length > 0;
         length -= std::max<qsizetype>(1, length / 20)) {
        shown = BreakableText(QStringView(text).left(length)) + leftOut;
        if (fits(shown))
            break;
    }
    return shown;
}
