#pragma once

#include "platform/template/SourceFinder.h"

// Binds the expressions of a template to columns and totals, and checks the types of their values.
class ExpressionBinder {
public:
    // The surroundings of an expression: which totals it may use, and what else is known there.
    enum class Aggregates { None, RunningOnly, OfTable, OfSource };
    struct Place {
        int line = 0;
        Aggregates aggregates = Aggregates::OfSource;
        bool isPageEdge = false; // in a page header or footer, where the page number is known
        bool isPageEnd = false; // in the totals of a page, printed when the table is already at a later row
        TemplateTable* table = nullptr;
    };

    // Both must outlive the binder.
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
