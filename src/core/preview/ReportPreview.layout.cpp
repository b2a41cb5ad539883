#include "core/preview/ReportPreview.h"
#include "core/menu/Keys.h"
#include "platform/forms/Look.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QSize WindowFrame(16, 48); // what a window manager puts around a window

// As much of the machine's screen as there is, and never less than an entry screen takes.
QSize WindowSize()
{
    const QSize least(Look::ScreenWidth, Look::ScreenHeight);
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? least.expandedTo(screen->availableSize() - WindowFrame) : least;
}

// Two rows of keys: how to look at the report, and what can be done with it.
QWidget* KeyRows(const QString& screen)
{
    auto* rows = new QWidget;
    rows->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* stack = new QVBoxLayout(rows);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(Layout::KeyStrip(Keys::Of(screen + QStringLiteral(".page"))));
    stack->addWidget(Layout::KeyStrip(Keys::Of(screen)));
    return rows;
}

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
    Layout::Stack(*this, header, body, KeyRows(Name()));
    body->setContentsMargins(6, 6, 6, 6);
    setMinimumSize(Look::ScreenWidth, Look::ScreenHeight);
    resize(WindowSize());
}
