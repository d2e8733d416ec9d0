#include "start/Foldery.h"
#include "common/Blad.h"
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tornel::start {

namespace {

/// Where an installation puts the files of a program that stands in `bin`.
QDir folderInstalacji(const QString& folderProgramu) {
    return {QDir::cleanPath(folderProgramu + QStringLiteral("/../share/tornel"))};
}

bool zainstalowany(const QString& folderProgramu) {
    return QDir(folderProgramu).dirName() == QLatin1String("bin") &&
           folderInstalacji(folderProgramu).exists();
}

} // namespace

QString FolderDanych(const QString& folderProgramu) {
    if (!zainstalowany(folderProgramu) && QFileInfo(folderProgramu).isWritable()) return folderProgramu;
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QStringLiteral("/Tornel"));
    if (!folder.mkpath(QStringLiteral(".")))
        throw Blad(QStringLiteral("Nie można utworzyć folderu danych „%1”.").arg(folder.path()));
    return folder.path();
}

QString PlikProgramu(const QString& folderProgramu, const QString& nazwa) {
    QString obok = QDir(folderProgramu).filePath(nazwa);
    if (QFileInfo::exists(obok)) return obok;
    QString zInstalacji = folderInstalacji(folderProgramu).filePath(nazwa);
    return QFileInfo::exists(zInstalacji) ? zInstalacji : obok;
}

} // namespace tornel::start
