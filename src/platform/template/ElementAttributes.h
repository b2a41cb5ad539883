#pragma once

#include "platform/template/ElementPlace.h"
#include "platform/template/TemplateXml.h"
#include "platform/template/TextLook.h"
#include "platform/template/WidthRule.h"

#include <QStringList>

// The attributes of one element, each asked for by name. What can't be read becomes a fault, and what it is
// read as then is of no use.
class ElementAttributes {
public:
    static constexpr double LargestLength = 1000; // millimetres
    static constexpr double SmallestFont = 4; // points
    static constexpr double LargestFont = 72;

    // Of the element that the XML stands at; it must outlive them.
    explicit ElementAttributes(TemplateXml& xml);

    int Line() const { return m_line; }
    void Fault(const QString& text);

    // Tells of the attributes that nobody has asked for.
    void Finish();

    // A text as it stands; empty if it isn't there, which is a fault where it is required.
    QString Text(QStringView name);
    QString Required(QStringView name);

    // "1" or "0"; false if it isn't there.
    bool Flag(QStringView name);

    // The flag `newpage`, which is refused where no page can begin.
    bool NewPage(ElementPlace place);

    // A number from `least` to `most`, or `otherwise`.
    double Number(QStringView name, double least, double most, double otherwise);

    // The width in `w`: millimetres, or a share.
    WidthRule Width();

    // What align, bold and size say; of letters that stand where they must, only the size.
    TextLook Look();
    double LetterSize();

    // An expression; nothing if it isn't there or can't be read.
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
