#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "AudioFileManager.h"

// The local sound folder: where it is made, which files count as sounds, saving without truncation, release.
class tst_AudioFileManager : public QObject
{
    Q_OBJECT
private slots:
    void initialMakesTheFolder_data();
    void initialMakesTheFolder();
    void soundsAreKeptUntilRelease();
    void storeWithoutFolderTouchesNothing();
};

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

} // namespace

void tst_AudioFileManager::initialMakesTheFolder_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("isReady");
    QTest::addColumn<QStringList>("rootEntries");
    QTest::newRow("existing folder used as it is") << "" << true << QStringList{"settings.ini"};
    QTest::newRow("missing parents are made") << "client/sounds" << true << QStringList{"client", "settings.ini"};
    // Tests run as root, so a permission alone would not stop the folder from being made.
    QTest::newRow("below a file fails, path kept") << "settings.ini/sounds" << false << QStringList{"settings.ini"};
}

void tst_AudioFileManager::initialMakesTheFolder()
{
    QFETCH(QString, directory);
    QFETCH(bool, isReady);
    QFETCH(QStringList, rootEntries);
    QTemporaryDir root;
    QFile settings(root.filePath("settings.ini"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    const QString path = directory.isEmpty() ? root.path() : root.filePath(directory);

    AudioFileManager store;
    QCOMPARE(store.initial(path), isReady);

    QCOMPARE(QStringList({store.directoryPath(), QFileInfo(path).isDir() ? "folder" : "none"}),
             QStringList({path, isReady ? "folder" : "none"}));
    QCOMPARE(QDir(root.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), rootEntries);
}

void tst_AudioFileManager::soundsAreKeptUntilRelease()
{
    // Given a sound saved over a longer one of the same name, a sound in capitals, a text file, and a folder
    // named like a sound
    QTemporaryDir root;
    const QString path = root.filePath("sounds");
    AudioFileManager store;
    QVERIFY(store.initial(path));
    QVERIFY(store.save("x.mp3", "abcdefghijklmnopqrst"));
    QVERIFY(store.save("x.mp3", "0123456789"));
    QVERIFY(store.save("B.MP3", "ID3") && store.save("notes.txt", "ID3") && QDir(path).mkdir("c.mp3"));
    QVERIFY(!store.save("c.mp3", "ID3"));

    // Then the new bytes lead and the old tail stays, and only the sound files are listed
    QCOMPARE(contentOf(path + "/x.mp3"), QByteArray("0123456789klmnopqrst"));
    QStringList names = store.getFileList();
    names.sort();
    QCOMPARE(names, QStringList({"B.MP3", "x.mp3"}));

    // When released, the folder is gone with everything in it, the path is kept and nothing saves until initial
    store.release();
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(store.directoryPath(), path);
    QCOMPARE(store.getFileList(), QStringList());
    QVERIFY(!store.save("x.mp3", "ID3"));
}

void tst_AudioFileManager::storeWithoutFolderTouchesNothing()
{
    // Given a store that was never given a folder, running in a scratch working directory with a sound
    QTemporaryDir root;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(root.path()));
    QFile sound("keep.mp3");
    QVERIFY(sound.open(QIODevice::WriteOnly));
    AudioFileManager store;

    // When it is given an empty path, lists and is released
    const bool isReady = store.initial(QString());
    const QStringList names = store.getFileList();
    store.release();
    QVERIFY(QDir::setCurrent(previous));

    // Then it saw nothing there and removed nothing
    QCOMPARE(QVariantList({isReady, names}), QVariantList({false, QStringList()}));
    QVERIFY(QFileInfo::exists(root.filePath("keep.mp3")));
}

QTEST_GUILESS_MAIN(tst_AudioFileManager)
#include "tst_audiofilemanager.moc"
