#include "WriteAheadLog.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr quint32 Magic = 0x377f0682; // the lowest bit tells the byte order of the checksums
constexpr int HeadSize = 32;
constexpr int FrameHeadSize = 24;

struct Checksum {
    quint32 first = 0;
    quint32 second = 0;

    void Add(const char* bytes, int count, bool bigEndian)
    {
        for (int i = 0; i < count; i += 8) {
            first += Word(bytes + i, bigEndian) + second;
            second += Word(bytes + i + 4, bigEndian) + first;
        }
    }

    static quint32 Word(const char* bytes, bool bigEndian)
    {
        return bigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
    }

    bool IsAt(const char* bytes) const
    {
        return first == qFromBigEndian<quint32>(bytes) && second == qFromBigEndian<quint32>(bytes + 4);
    }
};

}

WriteAheadLog WriteAheadLog::Read(const QString& databaseFile, int pageSize)
{
    WriteAheadLog log;
    QFile file(databaseFile + QStringLiteral("-wal"));
    if (!file.open(QIODevice::ReadOnly))
        return log;
    const QByteArray head = file.read(HeadSize);
    if (head.size() != HeadSize || (qFromBigEndian<quint32>(head.constData()) & ~1U) != Magic
        || qFromBigEndian<quint32>(head.constData() + 8) != static_cast<quint32>(pageSize))
        return log;
    const bool bigEndian = (qFromBigEndian<quint32>(head.constData()) & 1U) != 0;
    const QByteArray salts = head.mid(16, 8);
    Checksum sum;
    sum.Add(head.constData(), HeadSize - 8, bigEndian);
    if (!sum.IsAt(head.constData() + HeadSize - 8))
        return log;

    QSet<quint32> pages;
    QByteArray firstPage;
    for (;;) {
        const QByteArray frame = file.read(FrameHeadSize + pageSize);
        if (frame.size() != FrameHeadSize + pageSize || frame.mid(8, 8) != salts)
            return log;
        sum.Add(frame.constData(), 8, bigEndian);
        sum.Add(frame.constData() + FrameHeadSize, pageSize, bigEndian);
        if (!sum.IsAt(frame.constData() + 16))
            return log;
        const auto page = qFromBigEndian<quint32>(frame.constData());
        pages.insert(page);
        if (page == 1)
            firstPage = frame.mid(FrameHeadSize);
        if (const auto size = qFromBigEndian<quint32>(frame.constData() + 4); size != 0) {
            log.databasePages = size;
            log.pages = pages;
            log.firstPage = firstPage;
        }
    }
}
