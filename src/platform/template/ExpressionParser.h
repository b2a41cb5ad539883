#pragma once

#include "platform/template/Expression.h"
#include "platform/template/ExpressionTokens.h"

// In characters; each sign in it can be a level of its tree.
inline constexpr int LongestExpression = 2000;

// Reads an expression. Returns nothing, and sets the fault, if it can't be read or is too long.
//   field, source.field, 'text', 12.5, #page, #pages, $society $year $from $to $date
//   + - * /   = <> < > <= >=   and or not   ( )
//   if(condition, then, else)  abs(x)  plain(field)  format(x, 'pattern')  join('between', x, y, …)
//   sum(x) count() average(x) average(x by weight) min(x) max(x) running(x) running(x by groupfield)
std::optional<Expression> ReadExpression(QStringView text, ExpressionFault& fault);
