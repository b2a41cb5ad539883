#pragma once

#include <QString>

// A text to be seen, and which kind it is: a caption in the system's own encoding, stored words in it, or
// plain Unicode. In a caption, the letter or figure after '&' is the key that presses a button with Alt; in
// stored words every '&' is the letter that the encoding has there.
class Caption {
public:
    enum class Kind { Shivaji, Words, Plain };

    Caption() = default;
    Caption(QString text, Kind kind) : m_text(std::move(text)), m_kind(kind) { }

    // As the system spells it, '&' included.
    const QString& Text() const { return m_text; }

    // What the eye meets, without the '&' of a key.
    QString Seen() const;

    // The Alt key, in upper case; a null character if there is none.
    QChar Mnemonic() const;

    bool IsEmpty() const { return m_text.isEmpty(); }
    bool operator==(const Caption& other) const = default;

private:
    QString m_text;
    Kind m_kind = Kind::Plain;
};

// A caption in the system's encoding: Shivaji(u"maombar naMbar").
Caption Shivaji(QStringView stored);

// What the books hold, in the system's encoding: a name, a stored word, a message with one in it.
Caption Words(QStringView stored);

// A caption in plain text: Plain(u"Access Granted").
Caption Plain(QStringView text);
