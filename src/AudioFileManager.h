#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The local folder of alarm sounds ("*.mp3"), flat, named as the server names them. Failures are
// reported only through the results; nothing is traced here.
class AudioFileManager
{
public:
    // Stores the path (always) and makes sure the folder exists.
    bool initial(const QString& path);
    // Deletes the folder and everything in it; the path is kept.
    void release();
    // Writes from the start of the file without truncating it.
    bool save(const QString& name, const QByteArray& data);
    QStringList getFileList();

    QString directoryPath() const { return m_directoryPath; }

private:
    QString m_directoryPath;
};
