#include "platform/forms/TabPages.h"

#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStackedWidget>
#include <QTabBar>

namespace {

constexpr int TabHeight = 46;
constexpr int TabWidth = 190;
constexpr int LineHeight = 3;

// Flat tabs; the current one is bold and stands on the line above the page.
class TabStrip final : public QTabBar {
public:
    TabStrip()
    {
        setDrawBase(false);
        setExpanding(false);
        setUsesScrollButtons(false);
    }

protected:
    QSize tabSizeHint(int) const override { return {Look::Pixels(TabWidth), Look::Pixels(TabHeight)}; }
    QSize minimumTabSizeHint(int tab) const override { return tabSizeHint(tab); }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QColor line(Look::Band);
        painter.fillRect(0, height() - LineHeight, width(), LineHeight, line);
        for (int tab = 0; tab < count(); ++tab) {
            const bool seen = tab == currentIndex();
            const QRect face = tabRect(tab).adjusted(0, 4, -6, -LineHeight);
            painter.fillRect(face, seen ? line : QColor(Look::Quiet));
            if (seen) {
                const QColor inside = palette().color(QPalette::Active, QPalette::Button);
                painter.fillRect(face.adjusted(LineHeight, LineHeight, -LineHeight, LineHeight), inside);
            }
            painter.setFont(Look::PaintedFont(Look::Size::Normal, seen));
            painter.setPen(QColor(Look::Ink));
            painter.drawText(face, Qt::AlignCenter, tabText(tab));
        }
    }
};

}

TabPages::TabPages(
    Screen* screen, const char* name, const std::vector<Caption>& captions, const Handler& click)
    : Control(screen, name, new TabStrip)
    , Click(click.On(*screen))
    , m_pages(new QStackedWidget(screen))
    , m_controls(captions.size())
{
    for (const Caption& caption : captions) {
        Strip().addTab(caption.Seen().trimmed());
        m_pages->addWidget(new QWidget);
    }
    SetTabStop(false);
    TabPages::ShowFocus(false);
    QObject::connect(&Strip(), &QTabBar::currentChanged, &Strip(), [this](int tab) {
        if (tab != m_tab)
            RunEvent([this, tab] { SetTab(tab); });
    });
}

QTabBar& TabPages::Strip() const
{
    return *static_cast<QTabBar*>(Widget());
}

QWidget* TabPages::Pages() const
{
    return m_pages;
}

void TabPages::SetTab(int tab)
{
    Q_ASSERT(tab >= 0 && tab < Strip().count());
    if (tab == m_tab)
        return;
    m_tab = tab;
    Strip().setCurrentIndex(tab);
    ShowPage();
    if (Click)
        Click();
}

void TabPages::SetPage(int tab, QLayout* contents, const std::vector<Control*>& controls)
{
    m_pages->widget(tab)->setLayout(contents);
    m_controls[tab] = controls;
    ShowPage();
}

void TabPages::ShowPage()
{
    m_pages->setCurrentIndex(m_tab);
    for (std::size_t page = 0; page < m_controls.size(); ++page)
        for (Control* control : m_controls[page])
            control->SetVisible(static_cast<int>(page) == m_tab);
}

void TabPages::Turn(int step)
{
    SetFocus();
    if (HasFocus())
        SetTab((m_tab + step + Strip().count()) % Strip().count());
}

QString TabPages::Text() const
{
    return QString::number(m_tab + 1);
}

// Left and Right turn the pages while the strip itself has the focus.
bool TabPages::KeyPress(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Right && m_tab + 1 < Strip().count())
        SetTab(m_tab + 1);
    else if (key.key() == Qt::Key_Left && m_tab > 0)
        SetTab(m_tab - 1);
    return true;
}

// Without the focus, the current tab has the colour of its page.
void TabPages::ShowFocus(bool held)
{
    Control::ShowFocus(held);
    if (!held)
        Look::SetBackground(*Widget(), QColor(Look::Paper));
}
