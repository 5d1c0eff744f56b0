// Placeholder bodies until the real implementation lands.
#include "AudioFileManager.h"

bool AudioFileManager::initial(const QString&)
{
    return {};
}

void AudioFileManager::release() {}

bool AudioFileManager::save(const QString&, const QByteArray&)
{
    return {};
}

QStringList AudioFileManager::getFileList()
{
    return {};
}
