#pragma once

#include "platform/template/Expression.h"
#include "platform/template/ExpressionTokens.h"

// Reads an expression. Returns nothing, and sets the fault, if it can't be read or is too long.
//   field, source.field, 'text', 12.5, #page, #pages, $society $year $from $to $date
//   + - * /   = <> < > <= >=   and or not   ( )
//   if(condition, then, else)  abs(x)  plain(field)  format(x, 'pattern')  join('between', x, y, …)
//   sum(x) count() average(x) average(x by weight) min(x) max(x) running(x) running(x by groupfield)
std::optional<Expression> ReadExpression(QStringView text, ExpressionFault& fault);

// Reads a selection formula, the condition with which the program narrows a report:
//   {MilkPayments.PaymentDate} = DateTime (2026,4,1,00, 00, 00) and {MilkPayments.Liters} > 0
// It is the same language with fields in braces; Date(y,m,d) and DateTime(y,m,d,0,0,0) are days, texts may
// stand in double quotes too, and words may be in capitals.
std::optional<Expression> ReadFormula(QStringView text, ExpressionFault& fault);
