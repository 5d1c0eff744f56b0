#include "TestData.h"

#include <QFile>

QString TestData::path(const QString& name)
{
    return QStringLiteral(ALARM_TEST_DATA_DIR "/") + name;
}

QByteArray TestData::bytes(const QString& name)
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("missing test data file %s", qPrintable(name));
    return file.readAll();
}

QString TestData::text(const QString& name)
{
    return QString::fromUtf8(bytes(name));
}
