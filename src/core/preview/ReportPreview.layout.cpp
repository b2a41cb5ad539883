#include "core/preview/ReportPreview.h"

#include "platform/forms/Look.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

// Two rows of keys: how to look at the report, and what can be done with it.
QWidget* frmReportPreview::KeyStrips() const
{
    auto* rows = new QWidget;
    rows->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* stack = new QVBoxLayout(rows);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(Layout::KeyStrip(Keys::Of(m_keys, PagePlace.toString())));
    stack->addWidget(Layout::KeyStrip(Keys::Of(m_keys, Name())));
    return rows;
}

void frmReportPreview::BuildWindow()
{
    SetTitleLabel(lblTitle);
    SetTitle(Plain(m_report->Title()));
    QWidget* header = Layout::Header(lblTitle, lblPages, lblZoom);
    lblPages.Widget()->setFont(Look::Font(Look::Size::Large, true));
    picPage.SetAccessibleName(Plain(u"रिपोर्टचे पान"));
    txtSearch.SetAccessibleName(lblSearch.Shown());
    Layout::SizeField(txtSearch, 320);
    lblState.Widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* search = new QHBoxLayout;
    search->setContentsMargins(10, 0, 10, 0);
    search->setSpacing(12);
    search->addWidget(lblSearch.Widget());
    search->addWidget(txtSearch.Widget());
    search->addWidget(lblState.Widget(), 1);

    auto* body = new QVBoxLayout;
    body->setSpacing(6);
    body->addLayout(search);
    body->addWidget(picPage.Widget(), 1);
    Layout::Stack(*this, header, body, KeyStrips());
    body->setContentsMargins(6, 6, 6, 6);
}
