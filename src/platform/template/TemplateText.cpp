#include "platform/template/TemplateText.h"

#include "platform/template/ExpressionParser.h"

#include <algorithm>

bool TemplateText::Uses(Operation wanted) const
{
    return std::any_of(pieces.begin(), pieces.end(),
        [wanted](const TextPiece& piece) { return piece.expression && piece.expression->Uses(wanted); });
}

namespace {

// The index of a character outside of quotes, or -1.
qsizetype FindOutsideQuotes(QStringView text, QChar sign, qsizetype from)
{
    bool isQuoted = false;
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text[i] == u'\'')
            isQuoted = !isQuoted;
        else if (text[i] == sign && !isQuoted)
            return i;
    }
    return -1;
}

void SetFormat(TextPiece& piece, const QString& format, QStringList& faults)
{
    if (format == u"plain") {
        if (piece.expression->operation == Operation::Field)
            piece.expression->isPlain = true;
        else
            faults.append(QStringLiteral("\"|plain\" stands behind a field only"));
        return;
    }
    piece.format = PrintFormat::Of(format);
    if (piece.format.kind == PrintFormat::Kind::None)
        faults.append(QStringLiteral("\"%1\" is no format of a number or a date").arg(format));
}

TextPiece ReadPiece(QStringView inside, QStringList& faults)
{
    const qsizetype bar = FindOutsideQuotes(inside, u'|', 0);
    TextPiece piece;
    ExpressionFault fault;
    piece.expression = ReadExpression(bar < 0 ? inside : inside.left(bar), fault);
    if (!piece.expression) {
        faults.append(QStringLiteral("{%1}: %2").arg(ShownInFault(inside), fault.text));
        return piece;
    }
    if (bar >= 0)
        SetFormat(piece, inside.mid(bar + 1).trimmed().toString(), faults);
    return piece;
}

}

QString ShownInFault(QStringView text)
{
    constexpr qsizetype mostShown = 40;
    const QString shown = text.toString().simplified();
    return shown.size() > mostShown ? QString(shown.left(mostShown) + u'…') : shown;
}

TemplateText ReadTemplateText(QStringView text, QStringList& faults)
{
    TemplateText result;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype open = text.indexOf(u'{', at);
        const QStringView before = text.mid(at, open < 0 ? -1 : open - at);
        if (before.contains(u'}'))
            faults.append(QStringLiteral("a } closes nothing; as a sign it is written {'}'}"));
        if (!before.isEmpty()) {
            TextPiece plain;
            plain.characters = before.toString();
            result.pieces.push_back(std::move(plain));
        }
        if (open < 0)
            break;
        const qsizetype close = FindOutsideQuotes(text, u'}', open + 1);
        if (close < 0) {
            faults.append(QStringLiteral("a { isn't closed"));
            break;
        }
        TextPiece piece = ReadPiece(text.mid(open + 1, close - open - 1), faults);
        if (piece.expression)
            result.pieces.push_back(std::move(piece));
        at = close + 1;
    }
    return result;
}
