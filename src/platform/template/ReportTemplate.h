#pragma once

#include "platform/template/Paper.h"
#include "platform/template/TemplateElement.h"
#include "platform/template/TemplateFaults.h"
#include "platform/template/TemplateSource.h"

#include <vector>

// A whole template: the paper, the sources, and the elements from top to bottom.
struct ReportTemplate {
    QString file;
    int line = 0;
    bool isRead = false; // it was read to its end as a <report>, so it can be checked
    QString name;
    QString title; // what the clerk knows the report by; if empty, the name is used
    Paper paper;
    QString fontNames =
        QStringLiteral("Noto Sans Devanagari, Lohit Devanagari"); // the first one that is installed is used
    double fontSize = 10;
    std::vector<TemplateSource> sources;
    std::vector<TemplateElement> header, footer, body;
    int headerLine = 0;

    // Set by CheckForLayout: the font that is used on this machine.
    QString fontFamily = QStringLiteral("Noto Sans Devanagari");

    // The font size of a look in points. Without one it is that of the surroundings, or else of the
    // template.
    double LetterSize(const TextLook& look, double sizeAround = 0) const;

    // Reads a template file, which must be UTF-8 and named like its report. All faults are added to
    // `faults`. A template with faults can still be checked for more of them, but not be printed.
    static ReportTemplate Read(const QString& file, TemplateFaults& faults);

    // The same for a text; `file` is only named in the faults.
    static ReportTemplate ReadText(const QString& text, const QString& file, TemplateFaults& faults);
};
