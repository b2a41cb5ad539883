#include "platform/forms/Caption.h"

#include "platform/text/Shivaji01.h"

namespace {

// The encoding has a letter '&', so '&' marks an Alt key only before a Latin letter or a digit.
qsizetype MnemonicAt(const QString& text)
{
    for (qsizetype at = 0; at + 1 < text.size(); ++at)
        if (text[at] == u'&' && text[at + 1].unicode() < 0x80 && text[at + 1].isLetterOrNumber())
            return at;
    return -1;
}

}

QString Caption::Seen() const
{
    if (m_kind == Kind::Words)
        return Shivaji01::ToUnicode(m_text);
    QString bare = m_text;
    if (const qsizetype at = MnemonicAt(bare); at >= 0)
        bare.remove(at, 1);
    return m_kind == Kind::Shivaji ? Shivaji01::ToUnicode(bare) : bare;
}

QChar Caption::Mnemonic() const
{
    const qsizetype at = m_kind == Kind::Words ? -1 : MnemonicAt(m_text);
    return at < 0 ? QChar() : m_text[at + 1].toUpper();
}

Caption Shivaji(QStringView stored)
{
    return Caption(stored.toString(), Caption::Kind::Shivaji);
}

Caption Plain(QStringView text)
{
    return Caption(text.toString(), Caption::Kind::Plain);
}

Caption Words(QStringView stored)
{
    return Caption(stored.toString(), Caption::Kind::Words);
}
