#include "platform/template/ReportTemplate.h"

#include "platform/template/TemplateReader.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

constexpr qint64 LargestFile = 1024LL * 1024;

// The first line that isn't UTF-8, or 0. A character never spans two lines, so each line is decoded alone.
int LineThatIsNoUtf8(const QByteArray& bytes)
{
    int line = 0;
    for (const QByteArray& one : bytes.split('\n')) {
        ++line;
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(one);
        if (decoder.hasError())
            return line;
    }
    return 0;
}

}

double ReportTemplate::LetterSize(const TextLook& look, double sizeAround) const
{
    if (look.size > 0)
        return look.size;
    return sizeAround > 0 ? sizeAround : fontSize;
}

ReportTemplate ReportTemplate::ReadText(const QString& text, const QString& file, TemplateFaults& faults)
{
    return TemplateReader(text, file, faults).Read();
}

ReportTemplate ReportTemplate::Read(const QString& file, TemplateFaults& faults)
{
    QFile source(file);
    const QByteArray bytes = source.open(QIODevice::ReadOnly) ? source.read(LargestFile + 1) : QByteArray();
    if (source.error() != QFile::NoError) {
        faults.push_back({file, 0, QStringLiteral("the file can't be read: ") + source.errorString()});
        return {};
    }
    if (bytes.size() > LargestFile) {
        faults.push_back({file, 0, QStringLiteral("the file is larger than 1 MB")});
        return {};
    }
    if (const int line = LineThatIsNoUtf8(bytes)) {
        faults.push_back({file, line, QStringLiteral("the file isn't written in UTF-8")});
        return {};
    }
    ReportTemplate report = ReadText(QString::fromUtf8(bytes), file, faults);
    const QString name = QFileInfo(file).completeBaseName();
    if (!report.name.isEmpty() && report.name.compare(name, Qt::CaseInsensitive) != 0)
        faults.push_back({file, report.line,
            QStringLiteral("the report is called \"%1\", but its file \"%2\"").arg(report.name, name)});
    return report;
}
