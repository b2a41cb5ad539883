#pragma once

#include <QString>
#include <QStringList>

// What a run of vetrolan-setup came to.
struct Ran {
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs it in a process of its own: `home` is where the user's shared data lies, `input` its standard input.
Ran RunSetup(const QStringList& arguments, const QString& home = {}, const QByteArray& input = {});

// What makes a good society with the password "secret" in a folder.
QStringList Arguments(const QString& folder);

// The same arguments with the value of one of them changed.
QStringList With(QStringList arguments, QStringView option, const QString& value);

// Expects one line on the standard error that holds `word`, and nothing else.
void ExpectRefusal(const Ran& run, int exitCode, QStringView word);
