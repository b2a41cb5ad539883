#pragma once

#include "platform/forms/Field.h"
#include "platform/text/Shivaji01.h"

// A text in the Shivaji01 encoding. The field holds the stored text and shows it in Devanagari. The clerk
// types the Latin keys of the old keyboard layout, or Devanagari through an input method. Caret, Backspace
// and selection move by what is shown. After Devanagari came in, in any field, punctuation keys give
// punctuation and characters that the encoding lacks are ignored, until a Latin letter is typed.
class TextField : public Field {
public:
    TextField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // Decides which typed characters are accepted; if empty, all are.
    std::function<bool(QChar)> Accepts;

    // The clerk has changed the text.
    Event Change;

    // The text as it is stored.
    QString Text() const override { return m_stored; }
    void SetText(const QString& stored) override;

    // Takes keys as those of the old layout until Devanagari comes in, as at the start of the program.
    static void BeginWithKeys() { m_inUnicode = false; }

    void SelectAll() override;
    void SetMaxLength(int characters) override { m_maxLength = characters; }

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    void ShowComposition(const QString& text) override;
    void MouseDone() override;
    bool CaretByMouse() const override { return true; }

    // The clerk or the screen has changed the text.
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
    qsizetype m_caret = 0; // index in m_stored, at the edge of a piece
    qsizetype m_anchor = 0; // the other end of the selection
    int m_maxLength = 0;
    QString m_altDigits; // typed with Alt so far

    // The last input was Devanagari, not keys of the old layout. It is common to all fields, since the clerk
    // switches the keyboard, not the field.
    inline static bool m_inUnicode = false;
};
