#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// The files of this folder as they stand, in Unicode, and the report templates.
namespace Delivered {

QString Schema(); // schema.sql
QString Indexes(); // indexes.sql
QString Rows(); // rows.sql
QString FirstChart(); // first-chart.tsv: fat, cow rate, buffalo rate, under a heading
QString NumberWords(); // marathi-numbers.tsv: number, its word, under a heading

struct File {
    QString name; // within AppFolder
    QByteArray content;
};

// Every template that the program prints with, in the order of the alphabet.
const std::vector<File>& Templates();

}
