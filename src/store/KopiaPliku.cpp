#include "store/KopiaPliku.h"
#include "common/Blad.h"
#include "store/Polaczenie.h"
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <sqlite3.h>
#include <unistd.h>

namespace tornel::store {

namespace {

constexpr qint64 kKawalek = 1 << 20;

[[noreturn]] void zglosBrakKopii(const QString& zrodlo, const QString& cel, const QString& powod) {
    throw BladBazy(
        QStringLiteral("Nie można zrobić kopii „%1” bazy danych „%2”: %3.").arg(cel, zrodlo, powod));
}

QString powodSystemu(int numer) {
    switch (numer) {
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
        return QStringLiteral("na dysku nie ma miejsca");
    case EACCES:
    case EPERM:
    case EROFS:
        return QStringLiteral("pliku lub katalogu nie wolno zapisywać");
    case ENOENT:
        return QStringLiteral("nie ma takiego pliku lub katalogu");
    case EEXIST:
        return QStringLiteral("taki plik już istnieje");
    default:
        return QString::fromLocal8Bit(std::strerror(numer));
    }
}

void utrwalKatalogPliku(const QString& sciezka) {
    const int katalog = open(QFile::encodeName(QFileInfo(sciezka).absolutePath()).constData(),
                             O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (katalog < 0) return;
    fsync(katalog);
    close(katalog);
}

/// Page by page through the engine.
void kopiujStrony(sqlite3* zrodlo, const QString& cel, const QString& sciezka) {
    sqlite3* baza = nullptr;
    int wynik = sqlite3_open(cel.toUtf8().constData(), &baza);
    if (wynik == SQLITE_OK) {
        if (sqlite3_backup* kopia = sqlite3_backup_init(baza, "main", zrodlo, "main")) {
            sqlite3_backup_step(kopia, -1);
            sqlite3_backup_finish(kopia);
        }
        wynik = sqlite3_errcode(baza);
    }
    const QString powod = QString::fromUtf8(sqlite3_errmsg(baza));
    sqlite3_close(baza);
    if (wynik != SQLITE_OK) zglosBrakKopii(sciezka, cel, powod);
}

/// Renames within one disk; 0 or the system's error.
int przemianuj(const QString& z, const QString& na) {
    return std::rename(QFile::encodeName(z).constData(), QFile::encodeName(na).constData()) == 0 ? 0 : errno;
}

} // namespace

QString NazwaKopii(const QString& baza, const QString& co, const QDateTime& chwila) {
    const QFileInfo plik(baza);
    const QString trzon =
        QStringLiteral("%1-%2-%3")
            .arg(plik.completeBaseName(), co, chwila.toString(QStringLiteral("yyyyMMdd-HHmmss")));
    const QString koncowka = plik.suffix().isEmpty() ? QString() : QLatin1Char('.') + plik.suffix();
    for (int i = 1;; ++i) {
        QString nazwa =
            plik.dir().filePath(trzon + (i == 1 ? QString() : QStringLiteral("-%1").arg(i)) + koncowka);
        if (!QFileInfo::exists(nazwa)) return nazwa;
    }
}

void KopiujOtwarta(Polaczenie& polaczenie, const QString& cel) {
    // Under its own name only when it is whole.
    const QString niegotowa = cel + QStringLiteral(".czesc");
    UsunPlikBazy(niegotowa);
    try {
        kopiujStrony(polaczenie.uchwyt(), niegotowa, polaczenie.sciezka());
        QFile plik(niegotowa);
        if (!plik.rename(cel)) zglosBrakKopii(polaczenie.sciezka(), cel, plik.errorString());
    } catch (...) {
        UsunPlikBazy(niegotowa);
        throw;
    }
}

void KopiujZamknieta(const QString& zrodlo, const QString& cel) {
    QFile z(zrodlo), na(cel);
    if (!z.open(QIODevice::ReadOnly)) zglosBrakKopii(zrodlo, cel, z.errorString());
    if (!na.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        zglosBrakKopii(zrodlo, cel, na.exists() ? powodSystemu(EEXIST) : na.errorString());
    auto usun = qScopeGuard([&] { na.remove(); });
    QByteArray kawalek;
    while (!(kawalek = z.read(kKawalek)).isEmpty()) {
        errno = 0;
        if (na.write(kawalek) != kawalek.size())
            zglosBrakKopii(zrodlo, cel, errno ? powodSystemu(errno) : powodSystemu(ENOSPC));
    }
    if (z.error() != QFileDevice::NoError) zglosBrakKopii(zrodlo, cel, z.errorString());
    if (fsync(na.handle()) != 0) zglosBrakKopii(zrodlo, cel, powodSystemu(errno));
    usun.dismiss();
}

void ZamienPlik(const QString& nowy, const QString& stary) {
    if (const int blad = przemianuj(nowy, stary))
        throw BladBazy(QStringLiteral("Nie można zastąpić pliku „%1” plikiem „%2”: %3.")
                           .arg(stary, nowy, powodSystemu(blad)));
    utrwalKatalogPliku(stary);
}

void NadajNazwe(const QString& nowy, const QString& nazwa) {
    if (QFileInfo::exists(nazwa))
        throw BladBazy(QStringLiteral("Plik „%1” już istnieje i nie zostanie zastąpiony.").arg(nazwa));
    ZamienPlik(nowy, nazwa);
}

} // namespace tornel::store
