#pragma once

#include "bench/FloorStatement.h"
#include "platform/report/LayoutPool.h"
#include "platform/report/Report.h"

#include <string>

// The floor of a report: reads the rows with a prepared statement, lays out each text with Pango and draws it
// with Cairo, once. The texts and their places are copied from the finished report.
class FloorReport {
public:
    explicit FloorReport(const Report& report);

    // Reads the rows of the list and lays out each of its texts once. Returns the number of rows.
    int ReadAndLayOut();

    // Lays out each text once.
    void LayOut();

    // Writes the same pages as a PDF, with the same care for durability.
    void SavePdf(const QString& file);

private:
    struct Text {
        std::string utf8;
        PangoLayout* layout = nullptr;
        Align align = Align::Left;
        double x = 0, y = 0, width = 0; // points
    };
    struct Sheet {
        double width = 0, height = 0;
        std::vector<Text> texts;
        std::vector<PlacedItem> lines;
    };

    LayoutPool m_layouts;
    std::vector<Sheet> m_sheets;
    FloorStatement m_rows{
        "select CollectionNo,CollectionDate,MemberName,Animal,Liters,Fat,Rate,Amount from MilkCollections "
        "where CollectionDate>=? and CollectionDate<=? order by CollectionDate,CollectionTime,CollectionNo"};
};
