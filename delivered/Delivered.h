#pragma once

#include <QString>

// The files of this folder as they stand, in Unicode.
namespace Delivered {

QString Schema(); // schema.sql
QString Indexes(); // indexes.sql
QString Rows(); // rows.sql
QString FirstChart(); // first-chart.tsv: fat, cow rate, buffalo rate, under a heading
QString NumberWords(); // marathi-numbers.tsv: number, its word, under a heading

}
