#include "start/Foldery.h"
#include "common/Blad.h"
#include "wsparcie/Przestrzen.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

void zapiszPusty(const QString& sciezka) {
    QFile plik(sciezka);
    ASSERT_TRUE(plik.open(QIODevice::WriteOnly)) << sciezka.toStdString();
}

TEST(FolderyTest, AProgramInAFolderOfItsOwnKeepsEverythingBesideItself) {
    const QTemporaryDir korzen;
    const QDir folder(korzen.path());
    for (const QString& nazwa : {u"program"_s, u"bin"_s}) { // "bin" alone is no installation
        folder.mkpath(nazwa);
        EXPECT_EQ(FolderDanych(folder.filePath(nazwa)), folder.filePath(nazwa));
        EXPECT_EQ(PlikProgramu(folder.filePath(nazwa), u"Help.hlp"_s),
                  folder.filePath(nazwa + u"/Help.hlp"_s));
    }
}

TEST(FolderyTest, AnInstalledProgramKeepsDataWithTheUserAndFindsItsFilesWhereTheyWerePut) {
    const QTemporaryDir korzen;
    const QDir folder(korzen.path());
    folder.mkpath(u"usr/bin"_s);
    folder.mkpath(u"usr/share/tornel"_s);
    const QString programu = folder.filePath(u"usr/bin"_s);
    zapiszPusty(folder.filePath(u"usr/share/tornel/Help.hlp"_s));

    const QByteArray dawny = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder.filePath(u"dane"_s).toUtf8());
    EXPECT_EQ(FolderDanych(programu), folder.filePath(u"dane/Tornel"_s));
    EXPECT_TRUE(folder.exists(u"dane/Tornel"_s));
    zapiszPusty(folder.filePath(u"zajety"_s));
    qputenv("XDG_DATA_HOME", folder.filePath(u"zajety"_s).toUtf8());
    EXPECT_THROW((void)FolderDanych(programu), Blad);
    dawny.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", dawny);

    EXPECT_EQ(PlikProgramu(programu, u"Help.hlp"_s), folder.filePath(u"usr/share/tornel/Help.hlp"_s));
    zapiszPusty(folder.filePath(u"usr/bin/Help.hlp"_s));
    EXPECT_EQ(PlikProgramu(programu, u"Help.hlp"_s), folder.filePath(u"usr/bin/Help.hlp"_s));
}

} // namespace

} // namespace tornel::testy
