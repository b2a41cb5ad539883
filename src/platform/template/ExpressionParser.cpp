#include "platform/template/ExpressionParser.h"

#include "platform/template/ExactSum.h"

#include <QDate>

#include <algorithm>
#include <utility>

namespace {

// A recursive descent parser. It stops at the first fault.
class Parser {
public:
    Parser(QStringView text, Grammar grammar) : m_tokens(text, grammar), m_grammar(grammar) { Next(); }

    Expression ReadAll()
    {
        if (m_token.kind == Token::Kind::End)
            Fail(QStringLiteral("the expression is empty"));
        Expression whole = ReadOr();
        if (m_token.kind != Token::Kind::End)
            Fail(QStringLiteral("\"%1\" isn't expected here").arg(m_token.text));
        return whole;
    }

private:
    [[noreturn]] static void Fail(const QString& text) { throw ExpressionFault{text}; }

    void Next() { m_token = m_tokens.Next(); }

    bool IsSign(QStringView sign) const { return m_token.kind == Token::Kind::Sign && m_token.text == sign; }
    bool IsFormula() const { return m_grammar == Grammar::Formula; }
    bool IsWord(QStringView word) const
    {
        return m_token.kind == Token::Kind::Name
            && word.compare(m_token.text, IsFormula() ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0;
    }
    bool Accept(QStringView sign);
    void Expect(QStringView sign);

    Expression ReadOr();
    Expression ReadAnd();
    Expression ReadNot();
    Expression ReadComparison();
    Expression ReadSum();
    Expression ReadProduct();
    Expression ReadSigned();
    Expression ReadPrimary();
    Expression ReadName(const QString& name);
    Expression ReadField(const QString& name);
    Expression ReadCall(const QString& name);
    Expression ReadFieldInBraces();
    bool IsDate(const QString& name) const;
    Expression ReadDate(const QString& name);
    int ReadWhole();
    PrintFormat ReadFormat();
    Expression ReadAggregate(AggregateKind kind);
    static Expression Pair(Operation operation, Expression first, Expression second);

    // Nobody needs deeper brackets, and each level takes room on the stack.
    static constexpr int DeepestNesting = 100;
    struct Nesting {
        explicit Nesting(int& depth) : m_depth(depth)
        {
            if (++m_depth > DeepestNesting)
                Fail(QStringLiteral("the brackets are nested too deeply"));
        }
        ~Nesting() { --m_depth; }
        int& m_depth;
    };

    TokenReader m_tokens;
    Grammar m_grammar;
    int m_depth = 0;
    Token m_token;
};

bool Parser::Accept(QStringView sign)
{
    if (!IsSign(sign))
        return false;
    Next();
    return true;
}

void Parser::Expect(QStringView sign)
{
    if (!Accept(sign))
        Fail(QStringLiteral("\"%1\" is missing").arg(sign));
}

Expression Parser::Pair(Operation operation, Expression first, Expression second)
{
    Expression both;
    both.operation = operation;
    both.arguments.push_back(std::move(first));
    both.arguments.push_back(std::move(second));
    return both;
}

Expression Parser::ReadOr()
{
    const Nesting nesting(m_depth);
    Expression whole = ReadAnd();
    while (IsWord(u"or")) {
        Next();
        whole = Pair(Operation::Or, std::move(whole), ReadAnd());
    }
    return whole;
}

Expression Parser::ReadAnd()
{
    Expression whole = ReadNot();
    while (IsWord(u"and")) {
        Next();
        whole = Pair(Operation::And, std::move(whole), ReadNot());
    }
    return whole;
}

Expression Parser::ReadNot()
{
    if (!IsWord(u"not"))
        return ReadComparison();
    const Nesting nesting(m_depth);
    Next();
    Expression whole;
    whole.operation = Operation::Not;
    whole.arguments.push_back(ReadNot());
    return whole;
}

Expression Parser::ReadComparison()
{
    constexpr std::pair<QStringView, Operation> signs[] = {{u"=", Operation::Equal},
        {u"<>", Operation::NotEqual}, {u"<", Operation::Less}, {u"<=", Operation::LessOrEqual},
        {u">", Operation::Greater}, {u">=", Operation::GreaterOrEqual}};
    Expression first = ReadSum();
    for (const auto& [sign, operation] : signs) {
        if (Accept(sign))
            return Pair(operation, std::move(first), ReadSum());
    }
    return first;
}

Expression Parser::ReadSum()
{
    Expression whole = ReadProduct();
    for (;;) {
        if (Accept(u"+"))
            whole = Pair(Operation::Add, std::move(whole), ReadProduct());
        else if (Accept(u"-"))
            whole = Pair(Operation::Subtract, std::move(whole), ReadProduct());
        else
            return whole;
    }
}

Expression Parser::ReadProduct()
{
    Expression whole = ReadSigned();
    for (;;) {
        if (Accept(u"*"))
            whole = Pair(Operation::Multiply, std::move(whole), ReadSigned());
        else if (Accept(u"/"))
            whole = Pair(Operation::Divide, std::move(whole), ReadSigned());
        else
            return whole;
    }
}

Expression Parser::ReadSigned()
{
    if (!Accept(u"-"))
        return ReadPrimary();
    const Nesting nesting(m_depth);
    Expression whole;
    whole.operation = Operation::Negate;
    whole.arguments.push_back(ReadSigned());
    return whole;
}

Expression Parser::ReadPrimary()
{
    const Token token = m_token;
    Expression whole;
    whole.text = token.text;
    switch (token.kind) {
    case Token::Kind::Number:
        whole.number = token.text.toDouble();
        break;
    case Token::Kind::Text:
        whole.operation = Operation::Text;
        break;
    case Token::Kind::Hash:
        if (token.text != u"page" && token.text != u"pages")
            Fail(QStringLiteral("there is no #%1").arg(token.text));
        whole.operation = token.text == u"page" ? Operation::Page : Operation::PageCount;
        break;
    case Token::Kind::Dollar:
        if (!VariableType(token.text))
            Fail(QStringLiteral("there is no $%1").arg(token.text));
        whole.operation = Operation::Variable;
        break;
    case Token::Kind::Name:
        Next();
        return ReadName(token.text);
    case Token::Kind::Sign:
        if (IsFormula() && Accept(u"{"))
            return ReadFieldInBraces();
        if (!Accept(u"("))
            Fail(QStringLiteral("a value is missing before \"%1\"").arg(token.text));
        whole = ReadOr();
        Expect(u")");
        return whole;
    case Token::Kind::End:
        Fail(QStringLiteral("the expression breaks off"));
    }
    Next();
    return whole;
}

Expression Parser::ReadName(const QString& name)
{
    if (IsSign(u"("))
        return IsDate(name) ? ReadDate(name) : ReadCall(name);
    if (IsFormula())
        Fail(QStringLiteral("a field such as {Table.Column} is missing"));
    return ReadField(name);
}

Expression Parser::ReadField(const QString& name)
{
    Expression field;
    field.operation = Operation::Field;
    field.text = name;
    if (Accept(u".")) {
        if (m_token.kind != Token::Kind::Name)
            Fail(QStringLiteral("a column's name is missing behind \"%1.\"").arg(name));
        field.qualifier = name;
        field.text = m_token.text;
        Next();
    }
    return field;
}

Expression Parser::ReadFieldInBraces()
{
    const Token table = m_token;
    Next();
    if (table.kind != Token::Kind::Name || !IsSign(u"."))
        Fail(QStringLiteral("a field such as {Table.Column} is missing"));
    Expression field = ReadField(table.text);
    Expect(u"}");
    return field;
}

bool Parser::IsDate(const QString& name) const
{
    return IsFormula()
        && (name.compare(u"Date", Qt::CaseInsensitive) == 0
            || name.compare(u"DateTime", Qt::CaseInsensitive) == 0);
}

// Reads year, month and day, and for a DateTime the time, which must be midnight.
Expression Parser::ReadDate(const QString& name)
{
    Expect(u"(");
    std::vector<int> parts{ReadWhole()};
    while (Accept(u","))
        parts.push_back(ReadWhole());
    Expect(u")");
    if (parts.size() != 3 && parts.size() != 6)
        Fail(QStringLiteral("%1() takes year, month and day, and maybe a time").arg(name));
    const QDate date(parts[0], parts[1], parts[2]);
    if (!date.isValid())
        Fail(QStringLiteral("\"%1(%2,%3,%4)\" is no date")
                 .arg(name)
                 .arg(parts[0])
                 .arg(parts[1])
                 .arg(parts[2]));
    if (std::any_of(parts.begin() + 3, parts.end(), [](int part) { return part != 0; }))
        Fail(QStringLiteral("the books hold dates without a time of day"));
    Expression whole;
    whole.operation = Operation::Date;
    whole.text = date.toString(Qt::ISODate);
    return whole;
}

int Parser::ReadWhole()
{
    bool isWhole = false;
    const int number = m_token.text.toInt(&isWhole);
    if (m_token.kind != Token::Kind::Number || !isWhole)
        Fail(QStringLiteral("\"%1\" is no whole number").arg(m_token.text));
    Next();
    return number;
}

Expression Parser::ReadCall(const QString& name)
{
    constexpr std::pair<QStringView, AggregateKind> aggregates[] = {{u"sum", AggregateKind::Sum},
        {u"count", AggregateKind::Count}, {u"average", AggregateKind::Average},
        {u"min", AggregateKind::Minimum}, {u"max", AggregateKind::Maximum},
        {u"running", AggregateKind::Running}};
    for (const auto& [word, kind] : aggregates) {
        if (name == word)
            return ReadAggregate(kind);
    }
    Expect(u"(");
    Expression call;
    call.arguments.push_back(ReadOr());
    if (name == u"if") {
        call.operation = Operation::If;
        for (int i = 0; i < 2; ++i) {
            Expect(u",");
            call.arguments.push_back(ReadOr());
        }
    } else if (name == u"abs") {
        call.operation = Operation::Absolute;
    } else if (name == u"plain") {
        Expression field = std::move(call.arguments.front());
        if (field.operation != Operation::Field)
            Fail(QStringLiteral("plain() takes a field"));
        call = std::move(field);
        call.isPlain = true;
    } else if (name == u"format") {
        call.operation = Operation::Formatted;
        Expect(u",");
        call.format = ReadFormat();
    } else if (name == u"join") {
        call.operation = Operation::Join;
        do {
            Expect(u",");
            call.arguments.push_back(ReadOr());
        } while (IsSign(u","));
    } else {
        Fail(QStringLiteral("there is no function \"%1\"").arg(name));
    }
    Expect(u")");
    return call;
}

PrintFormat Parser::ReadFormat()
{
    PrintFormat format = PrintFormat::Of(m_token.text);
    if (m_token.kind != Token::Kind::Text || format.kind == PrintFormat::Kind::None)
        Fail(QStringLiteral("\"%1\" is no format of a number or a date").arg(m_token.text));
    Next();
    return format;
}

Expression Parser::ReadAggregate(AggregateKind kind)
{
    Expect(u"(");
    Expression call;
    call.operation = Operation::Aggregate;
    call.aggregate = kind;
    call.number = ExactSum::Places;
    const bool isCount = kind == AggregateKind::Count;
    if (isCount && Accept(u")"))
        return call;
    call.arguments.push_back(ReadOr());
    if (isCount && call.arguments.front().operation != Operation::Field)
        Fail(QStringLiteral("count() takes nothing or a field"));
    if (IsWord(u"by")) {
        Next();
        if (kind == AggregateKind::Average) {
            call.arguments.push_back(ReadOr());
        } else if (kind == AggregateKind::Running && m_token.kind == Token::Kind::Name) {
            call.text = m_token.text;
            Next();
        } else {
            Fail(QStringLiteral("\"by\" stands in average(x by weight) and in running(x by field)"));
        }
    }
    Expect(u")");
    return call;
}

std::optional<Expression> Read(QStringView text, Grammar grammar, ExpressionFault& fault)
{
    if (text.size() > Expression::LongestText) {
        fault.text = QStringLiteral("it is longer than %1 characters").arg(Expression::LongestText);
        return std::nullopt;
    }
    try {
        return Parser(text, grammar).ReadAll();
    } catch (const ExpressionFault& found) {
        fault = found;
        return std::nullopt;
    }
}

}

std::optional<Expression> ReadExpression(QStringView text, ExpressionFault& fault)
{
    return Read(text, Grammar::Template, fault);
}

std::optional<Expression> ReadFormula(QStringView text, ExpressionFault& fault)
{
    return Read(text, Grammar::Formula, fault);
}
