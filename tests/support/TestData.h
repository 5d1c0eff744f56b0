#pragma once

#include <QByteArray>
#include <QString>

// Documents shared by several tests live in tests/data.
namespace TestData {
QString path(const QString& name);
QString text(const QString& name);
QByteArray bytes(const QString& name);
} // namespace TestData
