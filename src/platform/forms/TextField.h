#pragma once

#include "platform/forms/Field.h"
#include "platform/text/Shivaji01.h"

// A text in the system's encoding. The stored text is the truth; the eye sees Devanagari while the clerk
// types the Latin keys of the old layout, and Devanagari from an input method is taken as well. Caret,
// Backspace and selection work on what is seen. Once Devanagari has come in, in whichever field, punctuation
// is punctuation, and a sign that the encoding has no place for isn't taken, until a Latin letter is typed.
class TextField : public Field {
public:
    TextField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // Which typed characters are taken; empty takes all.
    std::function<bool(QChar)> Accepts;

    // The clerk has changed the text.
    Event Change;

    // The text as it is stored.
    QString Text() const override { return m_stored; }
    void SetText(const QString& stored) override;

    // Keys are those of the old layout until Devanagari comes in, as when the program starts.
    static void BeginWithKeys() { m_inUnicode = false; }

    void SelectAll() override;
    void SetMaxLength(int characters) override { m_maxLength = characters; }

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    void ShowComposition(const QString& text) override;
    void MouseDone() override;
    bool CaretByMouse() const override { return true; }

    // The text has changed, by the clerk or by the screen.
    virtual void Changed() { }

private:
    struct Range {
        qsizetype start;
        qsizetype end;
    };
    Range Selection() const;
    void Hold(const QString& stored);
    void Replace(Range range, const QString& stored);
    void InsertSeen(const QString& devanagari);
    void InsertKeys(const QString& keys);
    bool TypeAltNumber(const QKeyEvent& key);
    void Backspace();
    bool JoinsWhatIsBehind(QStringView before) const;
    void Delete();
    bool EraseSelection();
    void MoveCaret(qsizetype to, bool select);
    void Show();
    qsizetype SeenOf(qsizetype stored) const;
    qsizetype StoredOf(qsizetype seen) const;
    qsizetype Before(qsizetype stored) const;
    qsizetype Behind(qsizetype stored) const;

    QString m_stored;
    std::vector<Shivaji01::Piece> m_pieces; // of the stored text
    qsizetype m_caret = 0; // in the stored text, at the edge of a piece
    qsizetype m_anchor = 0; // the other end of the selection
    int m_maxLength = 0;
    QString m_altDigits; // typed with Alt so far

    // What was written last came as Devanagari, not as keys of the old layout. The clerk changes the
    // keyboard, not the field: it holds for all of them.
    inline static bool m_inUnicode = false;
};
