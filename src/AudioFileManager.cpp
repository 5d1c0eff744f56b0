#include "AudioFileManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
const QString SOUND_FILE_PATTERN = QStringLiteral("*.mp3");
}

bool AudioFileManager::initial(const QString& path)
{
    m_directoryPath = path;
    // QFileInfo, not QDir: an empty path must not count as the current directory.
    if (QFileInfo(path).isDir())
        return true;
    return !path.isEmpty() && QDir().mkpath(path);
}

void AudioFileManager::release()
{
    // QDir would read an empty path as the current directory and empty it.
    if (!m_directoryPath.isEmpty())
        QDir(m_directoryPath).removeRecursively();
}

bool AudioFileManager::save(const QString& name, const QByteArray& data)
{
    // The core filters names before it calls this; the path is joined as text on purpose.
    QFile file(m_directoryPath + QLatin1Char('/') + name);
    // Deliberately not truncated, and kept so: a shorter sound saved over a longer one keeps the old tail.
    if (!file.open(QIODevice::ReadWrite))
        return false;
    return file.write(data) != -1;
}

QStringList AudioFileManager::getFileList()
{
    if (m_directoryPath.isEmpty())
        return {};
    return QDir(m_directoryPath).entryList({SOUND_FILE_PATTERN}, QDir::Files, QDir::NoSort);
}
