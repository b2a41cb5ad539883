#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// The contents of the files in this folder, in Unicode, and the report templates.
namespace Delivered {

QString Schema(); // schema.sql
QString Indexes(); // indexes.sql
QString Rows(); // rows.sql
QString FirstChart(); // first-chart.tsv: fat, cow rate, buffalo rate, under a heading
QString NumberWords(); // marathi-numbers.tsv: number, its word, under a heading

struct File {
    QString name; // its name in AppFolder
    QByteArray content;
};

// All templates that the program prints with, in alphabetical order.
const std::vector<File>& Templates();

}
