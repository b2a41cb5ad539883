#pragma once

#include "platform/template/Expression.h"

#include <QStringList>

// A stretch of a text of a template: plain characters, or one {expression|format}.
struct TextPiece {
    QString characters;
    std::optional<Expression> expression;
    PrintFormat format;
};

// A text with its {expressions}: "एकूण {sum(Liters)|0.000} लिटर".
struct TemplateText {
    std::vector<TextPiece> pieces;

    bool IsEmpty() const { return pieces.empty(); }

    // Whether one of its expressions holds a part of that kind.
    bool Uses(Operation wanted) const;

    // The text is one expression and nothing around it.
    bool IsOneExpression() const { return pieces.size() == 1 && pieces.front().expression.has_value(); }
};

// A text as a fault shows it: on one line, and only its beginning if it is long.
QString ShownInFault(QStringView text);

// Reads such a text. What can't be read is added to the faults and left out. A format is one of PrintFormat,
// or the word "plain" behind a field.
TemplateText ReadTemplateText(QStringView text, QStringList& faults);
