#include "common/Pliki.h"
#include "common/Blad.h"
#include <fcntl.h>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>
#include <unistd.h>

namespace tornel::common {

namespace {

QString przyczynaOdczytu(const QFileInfo& plik) {
    if (plik.isDir()) return QStringLiteral("to jest katalog");
    return plik.exists() ? QStringLiteral("brak uprawnień albo błąd odczytu")
                         : QStringLiteral("nie ma takiego pliku");
}

QString przyczynaZapisu(const QFileInfo& plik) {
    if (plik.isDir()) return QStringLiteral("to jest katalog");
    return plik.dir().exists() ? QStringLiteral("brak uprawnień albo miejsca na dysku")
                               : QStringLiteral("nie ma takiego katalogu");
}

/// Makes the name of a file that was put in place last over a power cut, as far as the disk knows how: what
/// is stored next may say that the file is there.
void utrwalKatalog(const QString& sciezka) {
    const int katalog = open(QFile::encodeName(QFileInfo(sciezka).absolutePath()).constData(),
                             O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (katalog < 0) return;
    fsync(katalog);
    close(katalog);
}

} // namespace

QByteArray CzytajPlik(const QString& sciezka) {
    QFile plik(sciezka);
    if (!QFileInfo(sciezka).isDir() && plik.open(QIODevice::ReadOnly)) {
        QByteArray tresc = plik.readAll();
        if (plik.error() == QFileDevice::NoError) return tresc;
    }
    throw Blad(QStringLiteral("Nie można odczytać pliku „%1”: %2.")
                   .arg(sciezka, przyczynaOdczytu(QFileInfo(sciezka))));
}

QString CzytajTekst(const QString& sciezka) {
    QStringDecoder dekoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString tekst = dekoder.decode(CzytajPlik(sciezka));
    if (dekoder.hasError()) throw Blad(QStringLiteral("Plik „%1” nie jest zapisany w UTF-8.").arg(sciezka));
    return tekst;
}

NowyPlik::NowyPlik(const QString& sciezka) : plik_(std::make_unique<QSaveFile>(sciezka)) {
    if (!plik_->open(QIODevice::WriteOnly)) zglosBlad();
}

NowyPlik::~NowyPlik() = default;

void NowyPlik::zglosBlad() const {
    const QString sciezka = plik_->fileName();
    throw Blad(QStringLiteral("Nie można zapisać pliku „%1”: %2.")
                   .arg(sciezka, przyczynaZapisu(QFileInfo(sciezka))));
}

void NowyPlik::dopisz(const QByteArray& kawalek) {
    if (plik_->write(kawalek) != kawalek.size()) zglosBlad();
}

void NowyPlik::zatwierdz() {
    if (!plik_->commit()) zglosBlad();
    utrwalKatalog(plik_->fileName());
}

void ZapiszPlik(const QString& sciezka, const QByteArray& tresc) {
    NowyPlik plik(sciezka);
    plik.dopisz(tresc);
    plik.zatwierdz();
}

} // namespace tornel::common
