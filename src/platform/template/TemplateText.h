#pragma once

#include "platform/template/Expression.h"

#include <QStringList>

// A piece of a text: plain characters, or one {expression|format}.
struct TextPiece {
    QString characters;
    std::optional<Expression> expression;
    PrintFormat format;
};

// A text with its {expressions}: "एकूण {sum(Liters)|0.000} लिटर".
struct TemplateText {
    std::vector<TextPiece> pieces;

    bool IsEmpty() const { return pieces.empty(); }

    // True if one of its expressions contains that operation.
    bool Uses(Operation wanted) const;

    // True if it is one {expression} and nothing else.
    bool IsOneExpression() const { return pieces.size() == 1 && pieces.front().expression.has_value(); }
};

// A text as it is quoted in a fault: on one line, and only its beginning if it is long.
QString ShownInFault(QStringView text);

// Reads a text with {expressions}. An expression that can't be read is added to the faults and left out. A
// format is a pattern of PrintFormat, or "plain" after a field.
TemplateText ReadTemplateText(QStringView text, QStringList& faults);
