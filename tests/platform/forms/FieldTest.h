#pragma once

#include "tests/platform/forms/FormsTest.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

// One field under test, and one to leave it for.
template <class F> class FieldScreen : public Screen {
public:
    explicit FieldScreen(const std::function<std::unique_ptr<F>(Screen*)>& make)
        : Screen("FieldScreen")
        , field(make(this))
        , next(this, "next")
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(field->Widget());
        column->addWidget(next.Widget());
        column->addStretch(1);
        resize(400, 400);
    }

    std::unique_ptr<F> field;
    PlainField next;
};

// Keystroke by keystroke: the field holds the focus from the start.
template <class F> class FieldTest : public FormsTest {
protected:
    using Maker = std::function<std::unique_ptr<F>(Screen*)>;

    void With(const Maker& make, const std::function<void(F&)>& script)
    {
        F* field = nullptr;
        Failure = TheClerk.Play(
            [&] {
                FieldScreen<F> screen(make);
                field = screen.field.get();
                screen.ShowModal();
            },
            [&](Clerk&) { script(*field); });
        EXPECT_FALSE(Failure);
    }

    // What the eye meets.
    static std::string Seen(const F& field) { return field.Seen().toStdString(); }

    // What goes into statements.
    static std::string Text(const F& field) { return field.Text().toStdString(); }

    static QLineEdit& Line(const F& field) { return *static_cast<QLineEdit*>(field.Widget()); }
    static std::string Selected(const F& field) { return Line(field).selectedText().toStdString(); }

    // Empties the field, types, and reads it.
    std::string Typed(F& field, const char* keys)
    {
        Do([&field] { field.Clear(); });
        Type(keys);
        return Text(field);
    }

    // The same for an input method.
    std::string Composed(F& field, const char* text)
    {
        Do([&field] { field.Clear(); });
        Compose(text);
        return Text(field);
    }

    // The same for the clipboard.
    std::string Pasted(F& field, const char* text)
    {
        Do([&field] { field.Clear(); });
        Paste(text);
        return Text(field);
    }

    // Leaves the field and comes back, which selects its whole text.
    void EnterAnew() { Type("{TAB}+{TAB}"); }
};
