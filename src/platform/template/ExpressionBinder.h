#pragma once

#include "platform/database/Catalogue.h"
#include "platform/template/ReportTemplate.h"
#include "platform/template/TemplateChoices.h"

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

    ExpressionBinder(ReportTemplate& report, Catalogue& catalogue, TemplateFaults& faults);

    void Fault(int line, const QString& text);

    // The source of a name; -1 and a fault if there is none.
    int FindSource(const QString& name, int line);

    // The position of a column among those that are read of a source; -1 if its table hasn't got it. A source
    // whose table is unknown takes every name: that fault is told once.
    int FindColumn(int source, const QString& name);

    void BindText(TemplateText& text, const Place& place);
    void BindCondition(std::optional<Expression>& condition, const Place& place);
    ValueType Bind(Expression& expression, const Place& place);

    // The sources whose rows are being walked through, the innermost last.
    std::vector<int> Walked;

    // Tells of a source that hangs on another whose rows aren't being walked through.
    void RequireParent(int source, int line);

    // Begins to walk through a source; it is noted as walked somewhere in the template.
    void Walk(int source);

    // What has been bound so far.
    SourceUse Use;

private:
    void NoteReading(int source);
    bool MovesOn(int source) const;
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
    Catalogue& m_catalogue;
    TemplateFaults& m_faults;
};
