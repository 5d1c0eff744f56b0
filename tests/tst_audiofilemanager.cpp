#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "AudioFileManager.h"

namespace {

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

class tst_AudioFileManager : public QObject
{
    Q_OBJECT

private slots:
    void initial_data();
    void initial();
    void fileList_data();
    void fileList();
    void saveWritesNewFile();
    void saveOverwritesWithoutTruncating();
    void saveFailsWhenNameIsADirectory();
    void releaseRemovesEverything();
    void storeWithoutPathLeavesCurrentDirectoryAlone();
};

void tst_AudioFileManager::initial_data()
{
    QTest::addColumn<QString>("existingFile");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("isReady");
    QTest::addColumn<QStringList>("rootEntries");

    QTest::newRow("existing directory is used as it is") << "a.mp3" << "" << true << QStringList{"a.mp3"};
    QTest::newRow("missing parents are created") << "" << "client/alarm/sounds" << true << QStringList{"client"};
    // Tests run as root, so permissions alone would not stop the directory from being made.
    QTest::newRow("below a regular file fails but keeps the path")
        << "settings.ini" << "settings.ini/sounds" << false << QStringList{"settings.ini"};
}

void tst_AudioFileManager::initial()
{
    QFETCH(QString, existingFile);
    QFETCH(QString, directory);
    QFETCH(bool, isReady);
    QFETCH(QStringList, rootEntries);
    QTemporaryDir root;
    QVERIFY(root.isValid());
    QVERIFY(existingFile.isEmpty() || writeFile(root.filePath(existingFile), "ID3"));
    const QString path = directory.isEmpty() ? root.path() : root.filePath(directory);

    AudioFileManager store;
    QCOMPARE(store.initial(path), isReady);

    QCOMPARE(store.directoryPath(), path);
    QCOMPARE(QFileInfo(path).isDir(), isReady);
    QCOMPARE(QDir(root.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), rootEntries);

    AudioFileManager withoutPath;
    QVERIFY(!withoutPath.initial(QString()));
    QCOMPARE(withoutPath.directoryPath(), QString());
}

void tst_AudioFileManager::fileList_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("directories");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("empty directory") << QStringList() << QStringList() << QStringList();
    QTest::newRow("mp3 in any letter case")
        << QStringList{"a.mp3", "a.MP3", "b.Mp3"} << QStringList() << QStringList{"a.MP3", "a.mp3", "b.Mp3"};
    QTest::newRow("other extensions left out")
        << QStringList{"a.mp3", "b.wav", "c.mp3.part", "mp3"} << QStringList() << QStringList{"a.mp3"};
    QTest::newRow("directory named like a sound left out")
        << QStringList{"a.mp3"} << QStringList{"c.mp3"} << QStringList{"a.mp3"};
    QTest::newRow("hidden file left out")
        << QStringList{".hidden.mp3", "a.mp3"} << QStringList() << QStringList{"a.mp3"};
}

void tst_AudioFileManager::fileList()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, directories);
    QFETCH(QStringList, expected);

    // Given a store directory holding the files and subdirectories
    QTemporaryDir root;
    QVERIFY(root.isValid());
    for (const QString& name : files)
        QVERIFY(writeFile(root.filePath(name), "ID3"));
    for (const QString& name : directories)
        QVERIFY(QDir(root.path()).mkdir(name));
    AudioFileManager store;
    QVERIFY(store.initial(root.path()));

    // When it lists its sounds (in file-system order, so sorted here)
    const QStringList names = store.getFileList();

    // Then only the regular *.mp3 files are named
    QCOMPARE(sorted(names), expected);
}

void tst_AudioFileManager::saveWritesNewFile()
{
    QTemporaryDir root;
    QVERIFY(root.isValid());
    AudioFileManager store;
    QVERIFY(store.initial(root.path()));

    QVERIFY(store.save("siren.mp3", QByteArray("ID3\x04\x00siren", 10)));

    QCOMPARE(readFile(root.filePath("siren.mp3")), QByteArray("ID3\x04\x00siren", 10));
    QCOMPARE(store.getFileList(), QStringList{"siren.mp3"});
}

void tst_AudioFileManager::saveOverwritesWithoutTruncating()
{
    // Given a 20-byte sound already stored
    QTemporaryDir root;
    QVERIFY(root.isValid());
    AudioFileManager store;
    QVERIFY(store.initial(root.path()));
    QVERIFY(store.save("x.mp3", "abcdefghijklmnopqrst"));

    // When a 10-byte sound of the same name is saved
    const bool isSaved = store.save("x.mp3", "0123456789");

    // Then the new bytes lead and the old tail stays
    QVERIFY(isSaved);
    QCOMPARE(readFile(root.filePath("x.mp3")), QByteArray("0123456789klmnopqrst"));
}

void tst_AudioFileManager::saveFailsWhenNameIsADirectory()
{
    QTemporaryDir root;
    QVERIFY(root.isValid());
    QVERIFY(QDir(root.path()).mkdir("c.mp3"));
    AudioFileManager store;
    QVERIFY(store.initial(root.path()));

    QVERIFY(!store.save("c.mp3", "ID3"));
}

void tst_AudioFileManager::releaseRemovesEverything()
{
    // Given a store with sounds and a stray subdirectory
    QTemporaryDir root;
    QVERIFY(root.isValid());
    const QString path = root.filePath("sounds");
    AudioFileManager store;
    QVERIFY(store.initial(path));
    QVERIFY(store.save("a.mp3", "ID3"));
    QVERIFY(QDir(path).mkdir("old"));
    QVERIFY(writeFile(path + "/old/b.mp3", "ID3"));

    // When it is released
    store.release();

    // Then the directory is gone, the path kept, nothing is listed and saving fails until initial again
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(store.directoryPath(), path);
    QCOMPARE(store.getFileList(), QStringList());
    QVERIFY(!store.save("a.mp3", "ID3"));
    QVERIFY(store.initial(path));
    QVERIFY(store.save("a.mp3", "ID3"));
}

void tst_AudioFileManager::storeWithoutPathLeavesCurrentDirectoryAlone()
{
    // Given a store that was never given a directory, run inside a scratch working directory
    QTemporaryDir root;
    QVERIFY(root.isValid());
    QVERIFY(writeFile(root.filePath("keep.mp3"), "ID3"));
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(root.path()));
    AudioFileManager store;

    // When it lists and is released
    const QStringList names = store.getFileList();
    store.release();
    QVERIFY(QDir::setCurrent(previous));

    // Then it saw nothing there and removed nothing
    QCOMPARE(names, QStringList());
    QVERIFY(QFileInfo::exists(root.filePath("keep.mp3")));
}

QTEST_MAIN(tst_AudioFileManager)
#include "tst_audiofilemanager.moc"
