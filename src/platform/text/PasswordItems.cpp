#include "platform/text/PasswordItems.h"

#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <QIODevice>
#include <QStringConverter>

namespace {

bool IsSeparator(QChar c)
{
    return c == u',' || c == u'\r' || c == u'\n';
}

// Reads the item at `at` and moves `at` behind the separator after it.
QString NextItem(const QString& text, qsizetype& at)
{
    while (at < text.size() && text[at] == u' ')
        ++at;
    QString item;
    if (at < text.size() && text[at] == u'"') {
        const qsizetype end = text.indexOf(u'"', at + 1);
        item = text.mid(at + 1, end < 0 ? -1 : end - at - 1);
        at = end < 0 ? text.size() : end + 1;
        while (at < text.size() && !IsSeparator(text[at]))
            ++at;
    } else {
        while (at < text.size() && !IsSeparator(text[at]))
            item += text[at++];
    }
    if (at < text.size())
        at += text[at] == u'\r' && text.mid(at + 1, 1) == u"\n" ? 2 : 1;
    return item;
}

// Removes blanks at the ends. Tabs and no-break spaces are characters of the password.
QString Trimmed(QString text)
{
    while (text.startsWith(u' '))
        text.remove(0, 1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

[[noreturn]] void Damaged()
{
    throw RunTimeError(RunTimeError::TypeMismatch,
        Sentences(u"पासवर्डची फाइल खराब झाली आहे. मूळ फाइल परत ठेवा.", QStringLiteral("PWD.TXT is damaged")));
}

[[noreturn]] void TooLong()
{
    throw RunTimeError(RunTimeError::TypeMismatch,
        Sentences(u"पासवर्डची फाइल फार मोठी आहे; ती पासवर्डची नाही. मूळ फाइल परत ठेवा.",
            QStringLiteral("PWD.TXT is too long to hold a password")));
}

// Decodes the file. An editor may have written a byte order mark, which isn't part of the first item.
QString TextOf(const QByteArray& bytes)
{
    const std::optional<QStringConverter::Encoding> marked = QStringConverter::encodingForData(bytes);
    return marked ? QStringDecoder(*marked).decode(bytes) : QString::fromLatin1(bytes);
}

}

QStringList ItemsOf(const QString& text)
{
    QStringList items;
    for (qsizetype at = 0; at < text.size();)
        items.append(NextItem(text, at));
    return items;
}

QString PasswordOfItems(const QStringList& items)
{
    if (items.isEmpty() || items.last().isEmpty())
        Damaged();
    const int key = items.last()[0].unicode();
    QString password;
    for (const QString& item : items) {
        if (item.isEmpty())
            Damaged();
        const int code = ToInt16(item[0].unicode() - key);
        if (code < 0)
            Damaged();
        password = Trimmed(password) + QChar(code);
    }
    password.chop(1);
    return password;
}

QString PasswordOfFile(QIODevice& file)
{
    constexpr qsizetype longest = 4096;
    const QByteArray bytes = file.read(longest + 1);
    if (bytes.size() > longest)
        TooLong();
    return PasswordOfItems(ItemsOf(TextOf(bytes)));
}
