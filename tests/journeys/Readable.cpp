#include "tests/journeys/Readable.h"

#include "platform/forms/Look.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/forms/Screen.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTableView>

#include <optional>

namespace {

class Faults {
public:
    void Add(const QWidget& widget, const QString& fault)
    {
        const QString name = widget.objectName().isEmpty()
            ? QString(QLatin1String(widget.metaObject()->className()))
            : widget.objectName();
        m_text += name.toStdString() + ": " + fault.toStdString() + '\n';
    }
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

// The room that a widget has for its text, and the text; nothing for a widget without one.
struct TextPlace {
    QString text;
    QSize room;
    bool wraps = false;
};

std::optional<TextPlace> PlaceOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const int margins = 2 * label->margin();
        return TextPlace{
            label->text(), label->contentsRect().size() - QSize(margins, margins), label->wordWrap()};
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return TextPlace{button->text(), button->contentsRect().size() - QSize(8, 4)};
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int marginOfLineEdits = 2;
        QStyleOptionFrame option;
        option.initFrom(line);
        option.lineWidth = line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, line);
        const QRect inner = line->style()->subElementRect(QStyle::SE_LineEditContents, &option, line);
        return TextPlace{line->text(), inner.size() - QSize(2 * marginOfLineEdits, 0)};
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        const bool isBox = qobject_cast<const QCheckBox*>(button);
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        return TextPlace{button->text(),
            button->style()
                ->subElementRect(
                    isBox ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents, &option, button)
                .size()};
    }
    return std::nullopt;
}

void LookForCutText(const QWidget& widget, Faults& faults)
{
    const std::optional<TextPlace> place = PlaceOf(widget);
    if (!place || place->text.trimmed().isEmpty())
        return;
    const QFontMetrics metrics(widget.font());
    const int flags = place->wraps ? Qt::TextWordWrap : Qt::TextExpandTabs;
    const QRect within(0, 0, place->wraps ? place->room.width() : 0, 0);
    const QSize needed = metrics.boundingRect(within, flags, place->text).size();
    const int ink = metrics.tightBoundingRect(place->text).height();
    const bool isTooHigh = place->wraps ? needed.height() > place->room.height() : ink > place->room.height();
    if (needed.width() > place->room.width() || isTooHigh)
        faults.Add(widget,
            QStringLiteral("\"%1\" needs %2 x %3 and has %4 x %5")
                .arg(place->text)
                .arg(needed.width())
                .arg(place->wraps ? needed.height() : ink)
                .arg(place->room.width())
                .arg(place->room.height()));
}

void LookForCutEntries(const QWidget& widget, Faults& faults)
{
    const auto* list = qobject_cast<const QAbstractItemView*>(&widget);
    if (list && list->model() && list->sizeHintForColumn(0) > list->viewport()->width())
        faults.Add(widget, "its entries are cut off at the right");
}

// A long name may end in an ellipsis; a figure that did would be another figure.
void LookForCutCells(const QTableView& table, Faults& faults)
{
    const QAbstractItemModel& model = *table.model();
    const QHeaderView& header = *table.horizontalHeader();
    if (header.length() > table.viewport()->width())
        faults.Add(table, "its columns are cut off at the right");
    for (int column = 0; column < model.columnCount(); ++column) {
        const int width = table.columnWidth(column);
        const QString head = model.headerData(column, Qt::Horizontal).toString();
        const QSize needs =
            header.fontMetrics().boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, head).size();
        if (header.isVisible() && (needs.width() > width || needs.height() > header.height()))
            faults.Add(table, QStringLiteral("the head \"%1\" is cut off").arg(head));
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex cell = model.index(row, column);
            const QString text = cell.data().toString();
            const int needed = table.fontMetrics().horizontalAdvance(text);
            if (needed > width && !text.isEmpty() && text.front().isDigit())
                faults.Add(
                    table, QStringLiteral("\"%1\" needs %2 and has %3").arg(text).arg(needed).arg(width));
        }
    }
}

void LookForCutTabs(const QTabBar& tabs, Faults& faults)
{
    for (int tab = 0; tab < tabs.count(); ++tab)
        if (!tabs.rect().contains(tabs.tabRect(tab))
            || tabs.fontMetrics().horizontalAdvance(tabs.tabText(tab)) > tabs.tabRect(tab).width())
            faults.Add(tabs, QStringLiteral("\"%1\" is cut off").arg(tabs.tabText(tab)));
}

// The list that drops below a name lies over what is there, and never takes the focus.
bool IsDropList(const QWidget& widget)
{
    return qobject_cast<const QAbstractItemView*>(&widget) && widget.focusPolicy() == Qt::NoFocus;
}

// The filled part of a bar lies below its percent.
bool IsFillOfABar(const QWidget& widget)
{
    return widget.objectName() == u"lblProgress";
}

std::vector<QWidget*> VisibleChildren(const QWidget& parent)
{
    std::vector<QWidget*> children;
    for (QObject* child : parent.children())
        if (auto* widget = qobject_cast<QWidget*>(child);
            widget && widget->isVisible() && !widget->isWindow())
            children.push_back(widget);
    return children;
}

void LookBelow(const QWidget& parent, Faults& faults)
{
    const std::vector<QWidget*> children = VisibleChildren(parent);
    for (const QWidget* child : children) {
        if (!parent.rect().contains(child->geometry()))
            faults.Add(*child, "hangs over the edge of what it lies in");
        for (const QWidget* other : children)
            if (other < child && !IsDropList(*child) && !IsDropList(*other) && !IsFillOfABar(*child)
                && !IsFillOfABar(*other) && child->geometry().intersects(other->geometry()))
                faults.Add(*child, "lies over " + other->objectName());
        LookForCutText(*child, faults);
        if (const auto* table = qobject_cast<const QTableView*>(child))
            LookForCutCells(*table, faults);
        else
            LookForCutEntries(*child, faults);
        if (const auto* tabs = qobject_cast<const QTabBar*>(child))
            LookForCutTabs(*tabs, faults);
        if (!qobject_cast<const QAbstractScrollArea*>(child) && !qobject_cast<const QLineEdit*>(child))
            LookBelow(*child, faults);
    }
}

// The window; of the smallest desktop less the frame of a window and the desktop's bar.
QSize Room()
{
    const QSize bars(Look::DesktopWidth - Look::ScreenWidth, Look::DesktopHeight - Look::ScreenHeight);
    const QSize window = ProgramWindow::Current().size();
    return window == QSize(Look::DesktopWidth, Look::DesktopHeight) ? window - bars : window;
}

}

std::string UnreadableOn(const Screen& screen)
{
    Faults faults;
    // A screen grows with the window; what counts is how small it can be made.
    const QSize most = Room();
    QSize least = screen.minimumSize().expandedTo(screen.minimumSizeHint());
    if (screen.hasHeightForWidth())
        least.setHeight(screen.layout()->minimumHeightForWidth(most.width()));
    if (least.width() > most.width() || least.height() > most.height())
        faults.Add(screen, QStringLiteral("is %1 x %2").arg(least.width()).arg(least.height()));
    if (!screen.isVisible())
        faults.Add(screen, "can't be seen");
    if (screen.Title().Seen().trimmed().isEmpty() || screen.windowTitle().isEmpty())
        faults.Add(screen, "has no title");
    for (const Control* control : screen.Controls()) {
        const QWidget& widget = *control->Widget();
        if (!qobject_cast<const QPushButton*>(&widget) && widget.accessibleName().trimmed().isEmpty())
            faults.Add(widget, "has no name for a screen reader");
        if (const auto* button = qobject_cast<const QPushButton*>(&widget);
            button && button->text().trimmed().isEmpty())
            faults.Add(widget, "has no caption");
    }
    LookBelow(screen, faults);
    return faults.Text();
}
