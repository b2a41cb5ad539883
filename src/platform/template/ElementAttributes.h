#pragma once

#include "platform/template/ElementPlace.h"
#include "platform/template/TemplateXml.h"
#include "platform/template/TextLook.h"
#include "platform/template/WidthRule.h"

#include <QStringList>

// The attributes of one XML element, asked for by name. A value that can't be read is reported as a fault;
// what the call returns then is only good for reading on.
class ElementAttributes {
public:
    static constexpr double LargestLength = 1000; // millimetres
    static constexpr double SmallestFont = 4; // points
    static constexpr double LargestFont = 72;

    // The attributes of the element where the XML reader stands. The reader must outlive them.
    explicit ElementAttributes(TemplateXml& xml);

    int Line() const { return m_line; }
    void Fault(const QString& text);

    // Reports the attributes that nobody has asked for. To be called last.
    void Finish();

    // The text of an attribute, empty if it is missing; for Required that is a fault.
    QString Text(QStringView name);
    QString Required(QStringView name);

    // True for "1", false for "0" or if it is missing.
    bool Flag(QStringView name);

    // The flag `newpage`; a fault where no page can begin.
    bool NewPage(ElementPlace place);

    // A number between `least` and `most`; `otherwise` if it is missing or wrong.
    double Number(QStringView name, double least, double most, double otherwise);

    // The attribute `w`: millimetres, or * for a share.
    WidthRule Width();

    // The attributes align, bold and size, or size alone.
    TextLook Look();
    double LetterSize();

    // An expression; nothing if it is missing or can't be read.
    std::optional<Expression> Condition(QStringView name);

    // A text with {expressions}.
    TemplateText Template(QStringView name);

private:
    QString m_element;
    int m_line;
    QXmlStreamAttributes m_attributes;
    QStringList m_taken;
    TemplateXml& m_xml;
};
