#pragma once

#include "platform/template/SourceFinder.h"

// Finds the columns that the names of a template stand for, and the types of its expressions.
class ExpressionBinder {
public:
    // What may stand where an expression stands.
    enum class Aggregates { None, RunningOnly, OfTable, OfSource };
    struct Place {
        int line = 0;
        Aggregates aggregates = Aggregates::OfSource;
        bool isPageEdge = false; // the page's number is known
        bool isPageEnd = false; // of a table: its rows have moved on
        TemplateTable* table = nullptr;
    };

    // Binds to the sources where the finder stands; both must outlive it.
    ExpressionBinder(ReportTemplate& report, SourceFinder& sources) : m_report(report), m_sources(sources) { }

    void BindText(TemplateText& text, const Place& place);
    void BindCondition(std::optional<Expression>& condition, const Place& place);
    ValueType Bind(Expression& expression, const Place& place);

private:
    ValueType BindField(Expression& field, const Place& place);
    ValueType BindArithmetic(Expression& expression, const Place& place);
    ValueType BindComparison(Expression& expression, const Place& place);
    ValueType BindLogic(Expression& expression, const Place& place);
    ValueType BindIf(Expression& expression, const Place& place);
    ValueType BindFormatted(Expression& expression, const Place& place);
    ValueType BindJoin(Expression& expression, const Place& place);
    ValueType BindPage(const Expression& expression, const Place& place);
    ValueType BindAggregate(Expression& expression, const Place& place);
    void CheckTotalled(AggregateKind kind, ValueType type, int line);
    void BindToTable(Expression& expression, const Place& place);
    bool IsAllowed(const Expression& aggregate, const Place& place);
    int SourceOf(const Expression& expression, int line);
    void NotePrinting(const Expression& expression);
    void CheckPrinted(const PrintFormat& format, ValueType type, const Place& place);

    ReportTemplate& m_report;
    SourceFinder& m_sources;
};
