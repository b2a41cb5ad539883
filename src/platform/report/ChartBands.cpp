#include "platform/report/ChartBands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/RowWalk.h"
#include "platform/template/ExactSum.h"
#include "platform/template/Spacing.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SpaceForBars = 0.7; // share of the room of a label that its bars fill
constexpr float ThinLine = 0.4F;
constexpr float ThickLine = 1.4F;
constexpr double PointSide = 3.6; // size of the square at each point of a line
constexpr int WantedTicks = 5;
constexpr quint8 GridGray = 210;
constexpr quint8 Grays[] = {60, 170, 110, 205, 20};

// The numbers of a chart. Successive rows with the same label are added up.
struct ChartFigures {
    QStringList labels;
    std::vector<std::vector<double>> series;
    double least = 0;
    double most = 0;
};

// The scale at the left: from `low` to `high` in round steps.
struct Scale {
    double low = 0;
    double high = 1;
    double step = 1;
};

ChartFigures ReadFigures(const TemplateChart& chart, BandMaker& maker)
{
    ChartFigures figures;
    std::vector<std::vector<ExactSum>> sums(chart.series.size());
    RowWalk walk(maker.Data, chart.source);
    Row row;
    while (walk.Next(row)) {
        maker.Data.SetCurrent(chart.source, &row);
        if (maker.Holds(chart.only)) {
            const QString label = Fill(chart.x, maker.Data);
            const bool isNew = figures.labels.isEmpty() || figures.labels.last() != label;
            if (isNew)
                figures.labels.append(label);
            for (std::size_t i = 0; i < sums.size(); ++i) {
                if (isNew)
                    sums[i].emplace_back();
                sums[i].back().Add(Evaluate(chart.series[i].value, maker.Data).Number());
            }
        }
        maker.Data.SetCurrent(chart.source, nullptr);
    }
    for (const std::vector<ExactSum>& one : sums) {
        std::vector<double>& numbers = figures.series.emplace_back();
        for (const ExactSum& sum : one) {
            numbers.push_back(sum.Number());
            figures.least = std::min(figures.least, sum.Number());
            figures.most = std::max(figures.most, sum.Number());
        }
    }
    return figures;
}

Scale MakeScale(double least, double most)
{
    Scale scale;
    const double range = most > least ? most - least : 1;
    scale.step = std::pow(10, std::floor(std::log10(range / WantedTicks)));
    for (const double factor : {2.0, 2.5, 2.0}) { // the step becomes 1, 2, 5, 10 times a power of ten
        if (range / scale.step > WantedTicks)
            scale.step *= factor;
    }
    scale.low = std::floor(least / scale.step) * scale.step;
    scale.high = std::ceil(most / scale.step) * scale.step;
    if (scale.high <= scale.low)
        scale.high = scale.low + scale.step;
    return scale;
}

// Draws the parts of one chart into its band.
class ChartDrawer {
public:
    ChartDrawer(const TemplateChart& chart, BandMaker& maker, Stretch stretch, Band& band)
        : m_chart(chart)
        , m_maker(maker)
        , m_look(chart.look)
        , m_stretch(stretch)
        , m_band(band)
        , m_lineHeight(maker.Measure.LineHeight(maker.Font(m_look)))
        , m_figures(ReadFigures(m_chart, maker))
        , m_scale(MakeScale(m_figures.least, m_figures.most))
    {
        band.height = ToPoints(m_chart.height);
        m_plot = QRectF(stretch.x + Spacing::ChartAxis, 0, stretch.width - Spacing::ChartAxis, band.height);
    }

    void Draw()
    {
        DrawTitle();
        DrawLegend();
        m_plot.setTop(m_plot.top() + m_lineHeight / 2);
        m_plot.setBottom(m_plot.bottom() - m_lineHeight - Spacing::ChartGap);
        DrawScale();
        for (qsizetype i = 0; i < m_figures.labels.size(); ++i)
            DrawLabel(i);
        for (std::size_t i = 0; i < m_figures.series.size(); ++i) {
            if (m_chart.isLine)
                DrawLine(i);
            else
                DrawBars(i);
        }
    }

private:
    void AddText(const QString& text, double x, double y, double width, Align align, bool isBold = false)
    {
        if (text.isEmpty())
            return;
        TextLook look = m_look;
        look.isBold = isBold;
        PlacedItem item;
        item.align = align;
        item.fit = Fit::Shrink;
        item.font = m_maker.Fonts.Add(m_maker.Font(look));
        item.x = static_cast<float>(x);
        item.y = static_cast<float>(y);
        item.width = static_cast<float>(width);
        item.height = m_lineHeight;
        item.text = text;
        m_band.items.push_back(std::move(item));
    }

    void AddStroke(PlacedItem::Kind kind, const QPointF& from, const QPointF& to, float weight, quint8 gray)
    {
        PlacedItem item;
        item.kind = kind;
        item.weight = weight;
        item.gray = gray;
        item.x = static_cast<float>(from.x());
        item.y = static_cast<float>(from.y());
        item.width = static_cast<float>(to.x() - from.x());
        item.height = static_cast<float>(to.y() - from.y());
        m_band.items.push_back(std::move(item));
    }

    void DrawTitle()
    {
        const QString title = Fill(m_chart.title, m_maker.Data);
        if (title.isEmpty())
            return;
        AddText(title, m_stretch.x, 0, m_stretch.width, Align::Center, true);
        m_plot.setTop(m_plot.top() + m_lineHeight);
    }

    void DrawLegend()
    {
        const double room = m_plot.width() / static_cast<double>(m_chart.series.size());
        const double side = m_lineHeight / 2;
        for (std::size_t i = 0; i < m_chart.series.size(); ++i) {
            const QPointF corner(m_plot.left() + room * static_cast<double>(i), m_plot.top() + side / 2);
            AddStroke(PlacedItem::Kind::Box, corner, corner + QPointF(side, side), 0, Gray(i));
            AddText(Fill(m_chart.series[i].label, m_maker.Data), corner.x() + side + Spacing::ChartGap,
                m_plot.top(), room - side - 2 * Spacing::ChartGap, Align::Left);
        }
        m_plot.setTop(m_plot.top() + m_lineHeight);
    }

    void DrawScale()
    {
        const int ticks = static_cast<int>(std::lround((m_scale.high - m_scale.low) / m_scale.step));
        for (int i = 0; i <= ticks; ++i) {
            const double value = m_scale.low + i * m_scale.step;
            const double y = HeightOf(value);
            AddText(ShortestDecimal(value), m_stretch.x, y - m_lineHeight / 2,
                Spacing::ChartAxis - Spacing::ChartGap, Align::Right);
            AddStroke(PlacedItem::Kind::Line, {m_plot.left(), y}, {m_plot.right(), y}, ThinLine,
                std::abs(value) < m_scale.step / 2 ? 0 : GridGray);
        }
        AddStroke(PlacedItem::Kind::Line, m_plot.topLeft(), m_plot.bottomLeft(), ThinLine, 0);
    }

    void DrawLabel(qsizetype index)
    {
        const double room = RoomOfLabel();
        const qsizetype every =
            std::max<qsizetype>(1, static_cast<qsizetype>(std::ceil(Spacing::ChartLabel / room)));
        if (index % every != 0)
            return;
        const double left = MiddleOf(index) - room * static_cast<double>(every) / 2;
        const double shown = std::min(room * static_cast<double>(every), m_plot.right() - left);
        if (shown >= std::min(room, Spacing::ChartLabel))
            AddText(m_figures.labels[index], left, m_plot.bottom() + Spacing::ChartGap, shown, Align::Center);
    }

    void DrawBars(std::size_t series)
    {
        const double width = RoomOfLabel() * SpaceForBars / static_cast<double>(m_figures.series.size());
        const double shift =
            (static_cast<double>(series) - static_cast<double>(m_figures.series.size()) / 2) * width;
        const std::vector<double>& numbers = m_figures.series[series];
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const double x = MiddleOf(static_cast<qsizetype>(i)) + shift;
            const double top = HeightOf(std::max(numbers[i], 0.0));
            const double bottom = HeightOf(std::min(numbers[i], 0.0));
            AddStroke(PlacedItem::Kind::Box, {x, top}, {x + width, bottom}, 0, Gray(series));
        }
    }

    void DrawLine(std::size_t series)
    {
        const std::vector<double>& numbers = m_figures.series[series];
        const QPointF half(PointSide / 2, PointSide / 2);
        QPointF from;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const QPointF to(MiddleOf(static_cast<qsizetype>(i)), HeightOf(numbers[i]));
            if (i > 0)
                AddStroke(PlacedItem::Kind::Line, from, to, ThickLine, Gray(series));
            AddStroke(PlacedItem::Kind::Box, to - half, to + half, 0, Gray(series));
            from = to;
        }
    }

    static quint8 Gray(std::size_t series) { return Grays[series % std::size(Grays)]; }

    double RoomOfLabel() const
    {
        return m_plot.width() / static_cast<double>(std::max<qsizetype>(1, m_figures.labels.size()));
    }

    double MiddleOf(qsizetype index) const
    {
        return m_plot.left() + (static_cast<double>(index) + 0.5) * RoomOfLabel();
    }

    double HeightOf(double value) const
    {
        const double share = (value - m_scale.low) / (m_scale.high - m_scale.low);
        return m_plot.bottom() - share * m_plot.height();
    }

    const TemplateChart& m_chart;
    BandMaker& m_maker;
    TextLook m_look;
    Stretch m_stretch;
    Band& m_band;
    float m_lineHeight;
    ChartFigures m_figures;
    Scale m_scale;
    QRectF m_plot;
};

}

Band MakeChart(const TemplateChart& chart, BandMaker& maker, Stretch stretch)
{
    Band band;
    band.isPicture = true;
    ChartDrawer(chart, maker, stretch, band).Draw();
    return band;
}
