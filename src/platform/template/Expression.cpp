#include "platform/template/Expression.h"

#include <algorithm>

bool Expression::Uses(Operation wanted) const
{
    return operation == wanted
        || std::any_of(arguments.begin(), arguments.end(),
            [wanted](const Expression& argument) { return argument.Uses(wanted); });
}

std::optional<ValueType> VariableType(QStringView name)
{
    if (name == u"society" || name == u"year")
        return ValueType::Text;
    if (name == u"from" || name == u"to" || name == u"date")
        return ValueType::Date;
    return std::nullopt;
}
