#include "start/BazaIni.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include <QDir>
#include <QFile>

namespace tornel::start {

namespace {

constexpr qsizetype kNajwiecejDawnych = 9;
constexpr qint64 kNajwiekszyPlik = 64LL * 1024;

QString plikIni(const QString& folder) { return QDir(folder).filePath(QStringLiteral("Baza.ini")); }

} // namespace

BazaIni RozbierzBazeIni(const QByteArray& tresc) {
    BazaIni wynik;
    bool pierwsza = true;
    for (const QByteArray& linia : tresc.split('\n')) {
        const QString sciezka = QString::fromUtf8(linia).trimmed();
        if (std::exchange(pierwsza, false))
            wynik.baza = sciezka;
        else if (!sciezka.isEmpty() && sciezka != wynik.baza && !wynik.dawniejsze.contains(sciezka) &&
                 wynik.dawniejsze.size() < kNajwiecejDawnych)
            wynik.dawniejsze += sciezka;
    }
    return wynik;
}

std::optional<BazaIni> CzytajBazeIni(const QString& folder) {
    QFile plik(plikIni(folder));
    if (!plik.open(QIODevice::ReadOnly)) return {};
    return RozbierzBazeIni(plik.read(kNajwiekszyPlik));
}

void WskazBaze(const QString& folder, const QString& obecna, const QString& nowa) {
    const BazaIni dotad = CzytajBazeIni(folder).value_or(BazaIni());
    QString tresc = nowa + u'\n' + obecna + u'\n' + dotad.baza + u'\n' + dotad.dawniejsze.join(u'\n');
    // Read as any start reads it: the present one and repeated ones go.
    const BazaIni ini = RozbierzBazeIni(tresc.toUtf8());
    tresc = ini.baza + u'\n';
    for (const QString& dawniejsza : ini.dawniejsze) tresc += dawniejsza + u'\n';
    ZapiszPlik(plikIni(folder), tresc.toUtf8());
}

} // namespace tornel::start
