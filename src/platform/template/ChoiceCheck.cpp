#include "platform/template/ChoiceCheck.h"

namespace {

class ChoiceChecker {
public:
    ChoiceChecker(const ReportTemplate& report, const SourceUse& use) : m_report(report), m_use(use) { }

    // The first field in the `only` of a source that its rows can't be selected by, or null.
    const Expression* FindWrong(int source) const
    {
        const std::optional<Expression>& only = Of(source).only;
        return only ? FindWrong(*only, source) : nullptr;
    }

private:
    const Expression* FindWrong(const Expression& part, int source) const
    {
        if (part.operation == Operation::Field && part.source >= 0 && IsWrong(part.source, source))
            return &part;
        for (const Expression& argument : part.arguments) {
            if (const Expression* wrong = FindWrong(argument, source))
                return wrong;
        }
        return nullptr;
    }

    // A source that is linked to this one changes along with it. Any other stands still only if nothing in
    // the template walks through it.
    bool IsWrong(int other, int source) const
    {
        for (int up = other; up >= 0; up = Of(up).parent) {
            if (up == source)
                return false;
        }
        if (Root(other) == Root(source))
            return true;
        const bool isKept = Of(source).parent >= 0 || m_use.readByFirstRow.contains(source);
        for (int up = other; isKept && up >= 0; up = Of(up).parent) {
            if (m_use.walked.contains(up))
                return true;
        }
        return false;
    }

    int Root(int source) const
    {
        while (Of(source).parent >= 0)
            source = Of(source).parent;
        return source;
    }

    const TemplateSource& Of(int source) const { return m_report.sources[static_cast<std::size_t>(source)]; }

    const ReportTemplate& m_report;
    const SourceUse& m_use;
};

}

void CheckChoices(
    const ReportTemplate& report, const SourceUse& use, const std::function<void(int, const QString&)>& fault)
{
    const ChoiceChecker checker(report, use);
    for (std::size_t i = 0; i < report.sources.size(); ++i) {
        const Expression* const wrong = checker.FindWrong(static_cast<int>(i));
        if (!wrong)
            continue;
        const QString& other = report.sources[static_cast<std::size_t>(wrong->source)].name;
        fault(report.sources[i].line,
            QStringLiteral(
                "the rows of \"%1\" are chosen once and not for each row of \"%2\", so its \"only\" "
                "can't use %2.%3; use \"link\", or the \"only\" of the element that goes through the rows")
                .arg(report.sources[i].name, other, wrong->text));
    }
}
