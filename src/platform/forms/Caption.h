#pragma once

#include <QString>

// A text to show, and how it is encoded: a caption in the Shivaji01 encoding, stored words in that encoding,
// or plain Unicode. In a caption, the letter or digit after '&' is its Alt key. In stored words '&' is a
// letter like any other.
class Caption {
public:
    enum class Kind { Shivaji, Words, Plain };

    Caption() = default;
    Caption(QString text, Kind kind) : m_text(std::move(text)), m_kind(kind) { }

    // The text as it is stored, with its '&'.
    const QString& Text() const { return m_text; }

    // The text to show, in Unicode, without the '&' of an Alt key.
    QString Seen() const;

    // The letter or digit of the Alt key, in upper case; a null character if there is none.
    QChar Mnemonic() const;

    bool IsEmpty() const { return m_text.isEmpty(); }
    bool operator==(const Caption& other) const = default;

private:
    QString m_text;
    Kind m_kind = Kind::Plain;
};

// A caption in the Shivaji01 encoding: Shivaji(u"maombar naMbar").
Caption Shivaji(QStringView stored);

// A text from the database, in the Shivaji01 encoding: a name, a stored word, or a message that contains one.
Caption Words(QStringView stored);

// A caption in Unicode: Plain(u"Access Granted").
Caption Plain(QStringView text);
