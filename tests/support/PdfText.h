#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

// What pdftotext reads in a PDF, without the breaks of pages; options such as "-layout".
inline QString PdfText(const QString& file, const QStringList& options = {})
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), options + QStringList{file, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished());
    EXPECT_EQ(reader.exitCode(), 0);
    return QString::fromUtf8(reader.readAllStandardOutput()).remove(u'\f');
}

// The words of a text.
inline QStringList WordsOf(const QString& text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}
