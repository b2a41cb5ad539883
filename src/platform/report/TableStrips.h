#pragma once

#include "platform/report/BandMaker.h"

// The strips of one table: its columns at their places, and what stands in them.
class TableStrips {
public:
    // Says once which columns are there. All must outlive it.
    TableStrips(const TemplateTable& table, BandMaker& maker, Stretch stretch);

    // The heads of the columns, or nullptr.
    const std::shared_ptr<const Band>& Head() const { return m_head; }

    // The current row; its fields are added to the record, if there is one.
    Band Row(QStringList* record) const;

    // The head of a group as one text across the table; nothing if it is empty.
    std::optional<Band> Title(const TemplateText& text) const;

    // Lines with cells of their own, one below the other; nothing if there is none.
    std::optional<Band> Lines(const std::vector<TemplateLine>& lines) const;

    // The totals of the columns behind a label, and the lines below them, between two rules; nothing if there
    // is neither. The totals are those that the data tell of now.
    std::optional<Band> Foot(const TemplateText* label, const std::vector<TemplateLine>& lines) const;

    // A foot of one line, and its height, which is always the same.
    Band ShortFoot(const TemplateText& label) const;
    float ShortFootHeight() const;

    const TemplateTable& Table() const { return m_table; }

private:
    // A column as it stands on the paper.
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
    std::vector<Cell> m_cells; // of all columns
    std::shared_ptr<const Band> m_head;
    float m_rowHeight = 0;
};

// Moves what a strip holds down, and makes it taller by that.
void MoveDown(Band& band, float by);
