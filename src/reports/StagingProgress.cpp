#include "reports/StagingProgress.h"

#include "platform/forms/Painting.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"

#include <QVBoxLayout>

StagingProgress::StagingProgress(Screen* screen)
    : m_bar(screen)
    , lblMessage(screen, "lblMessage")
    , lblMember(screen, "lblMember")
{
    for (Label* label : {&lblMessage, &lblMember}) {
        QSizePolicy place = label->Widget()->sizePolicy();
        place.setRetainSizeWhenHidden(true);
        label->Widget()->setSizePolicy(place);
        label->Widget()->setAlignment(Qt::AlignCenter);
    }
    End();
}

QLayout* StagingProgress::Line()
{
    auto* lines = new QVBoxLayout;
    lines->addWidget(lblMessage.Widget());
    lines->addWidget(m_bar.Widget());
    lines->addWidget(lblMember.Widget());
    return lines;
}

void StagingProgress::Show()
{
    lblMessage.SetFigure(QStringLiteral("Generating the Report"));
    lblMessage.SetVisible(true);
}

void StagingProgress::Announce()
{
    Show();
    Painting::LetIn();
}

// The bar paints the window.
void StagingProgress::Begin(int rows)
{
    Show();
    m_name.clear();
    lblMember.SetVisible(true);
    m_bar.Begin(rows);
}

void StagingProgress::Tell(double memberNo, const QString& name)
{
    m_memberNo = memberNo;
    m_name = name;
}

void StagingProgress::Step()
{
    if (!m_name.isEmpty() && Painting::IsDue())
        lblMember.SetFigure(ShortestDecimal(m_memberNo) + u' ' + Shivaji01::ToUnicode(m_name));
    m_bar.Step();
}

void StagingProgress::End()
{
    m_bar.End();
    lblMessage.SetFigure({});
    lblMember.SetFigure({});
    lblMessage.SetVisible(false);
    lblMember.SetVisible(false);
}
