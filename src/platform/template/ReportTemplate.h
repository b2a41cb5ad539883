#pragma once

#include "platform/template/Paper.h"
#include "platform/template/TemplateElement.h"
#include "platform/template/TemplateFaults.h"
#include "platform/template/TemplateSource.h"

#include <vector>

// A whole template: the sheet, what it reads, and what it prints from top to bottom.
struct ReportTemplate {
    QString file;
    int line = 0;
    bool isRead = false; // it is a report and sound XML, so there is something to check
    QString name;
    QString title; // what the clerk knows the report by; empty: the name
    Paper paper;
    QString fontNames =
        QStringLiteral("Noto Sans Devanagari, Lohit Devanagari"); // the first installed is used
    double fontSize = 10;
    std::vector<TemplateSource> sources;
    std::vector<TemplateElement> header, footer, body;
    int headerLine = 0;

    // Chosen when the layout is checked: the one of its fonts that this machine has.
    QString fontFamily = QStringLiteral("Noto Sans Devanagari");

    // How large letters are, in points; if the look doesn't say, as large as those around or the template's.
    double LetterSize(const TextLook& look, double sizeAround = 0) const;

    // Reads a template file, which is UTF-8 and has the name of its report. Everything that is wrong with it
    // is added to the faults; a template with faults is for nothing but finding more of them.
    static ReportTemplate Read(const QString& file, TemplateFaults& faults);

    // The same for the text of a template; `file` names it in the faults.
    static ReportTemplate ReadText(const QString& text, const QString& file, TemplateFaults& faults);
};
