#pragma once

#include "platform/template/ElementReader.h"
#include "platform/template/ReportTemplate.h"

// Reads a template from its XML. What isn't known is reported as a fault and skipped.
class TemplateReader {
public:
    // `file` is named in the faults, which are added to `faults`.
    TemplateReader(const QString& text, QString file, TemplateFaults& faults)
        : m_xml(text, std::move(file), faults)
    {
    }

    ReportTemplate Read();

private:
    void ReadReport(ReportTemplate& report);
    void ReadSource(ReportTemplate& report);

    TemplateXml m_xml;
    ElementReader m_elements{m_xml};
};
