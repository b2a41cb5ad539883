#pragma once

#include "platform/report/BandMaker.h"

// Makes the bands of one table: places its columns and fills their cells.
class TableStrips {
public:
    // Evaluates which columns are there. All must outlive it.
    TableStrips(const TemplateTable& table, BandMaker& maker, Stretch stretch);

    // The heads of the columns; nullptr if there are none.
    const std::shared_ptr<const Band>& Head() const { return m_head; }

    // The band of the current row. Its fields are added to the record, if there is one.
    Band Row(QStringList* record) const;

    // The head of a group as one text across the table; nothing if it is empty.
    std::optional<Band> Title(const TemplateText& text) const;

    // Lines with cells of their own, one below the other; nothing if none is printed.
    std::optional<Band> Lines(const std::vector<TemplateLine>& lines) const;

    // A foot between two rules: the totals with their label, and lines below them; nothing if there is
    // neither. The totals are those that `maker.Data` has now (see TotalsInSight).
    std::optional<Band> Foot(const TemplateText* label, const std::vector<TemplateLine>& lines) const;

    // A foot of a single line, and its height, which is always the same.
    Band ShortFoot(const TemplateText& label) const;
    float ShortFootHeight() const;

    const TemplateTable& Table() const { return m_table; }

private:
    // A column on the paper.
    struct Cell {
        bool isThere = true;
        Stretch stretch;
        TextLook look;
        Fit fit = Fit::Cut;
    };

    void PlaceColumns();
    void MakeHead();
    void AddSpans(Band& head) const;
    std::optional<Stretch> Across(std::size_t first, std::size_t columns) const;
    Band TotalsLine(const TemplateText& label, Fit labelFit) const;
    Band Line(const TemplateLine& line) const;
    void AddCell(Band& band, std::size_t column, QString text, const TextLook& look, Fit fit) const;
    void AddText(Band& band, QString text, const TextLook& look, Stretch stretch, Fit fit) const;
    void AddRule(Band& band, float y, float weight, quint8 gray) const;
    Band BetweenRules(Band band) const;

    const TemplateTable& m_table;
    BandMaker& m_maker;
    Stretch m_stretch;
    std::vector<Cell> m_cells; // one for each column
    std::shared_ptr<const Band> m_head;
    float m_rowHeight = 0;
};

// Moves the content of a band down and makes it taller by that.
void MoveDown(Band& band, float by);
