#include "store/WersjaPliku.h"
#include "common/Blad.h"
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace tornel::store {

namespace {

constexpr KrokWersji kKroki[] = {
    {u"zasiłki chorobowe wierszy list płac",
     [](Polaczenie& p) {
         p.wykonaj("CREATE TABLE \"ZASILEK\" (\"ROKMIES\" TEXT(6) NOT NULL, \"PRC_ID\" SHORT NOT NULL, "
                   "\"LISTA\" TEXT(1), \"KWOTA\" CURRENCY)");
         p.wykonaj("CREATE UNIQUE INDEX \"I_ZASILEK\" ON \"ZASILEK\" (\"ROKMIES\", \"PRC_ID\", \"LISTA\")");
     }},
    {u"kwoty składników wpisane ręcznie",
     [](Polaczenie& p) {
         p.wykonaj("CREATE TABLE \"WPISANE\" (\"ROKMIES\" TEXT(6) NOT NULL, \"PRC_ID\" SHORT NOT NULL, "
                   "\"LISTA\" TEXT(1), \"DODATNIE\" INTEGER, \"UJEMNE\" INTEGER)");
         p.wykonaj("CREATE UNIQUE INDEX \"I_WPISANE\" ON \"WPISANE\" (\"ROKMIES\", \"PRC_ID\", \"LISTA\")");
     }},
    {u"spis wydruków i plików",
     [](Polaczenie& p) {
         p.wykonaj("CREATE TABLE \"WYKONANE\" (\"ROKMIES\" TEXT(6) NOT NULL, \"NR\" INTEGER NOT NULL, "
                   "\"RODZAJ\" TEXT(20), \"ZRODLO\" TEXT(10), \"LISTA\" TEXT(50), \"KOMU\" INTEGER, "
                   "\"DOKUMENT\" INTEGER, \"KWOTA\" CURRENCY, \"DZIEN\" DATE, \"CZAS\" TEXT(8), "
                   "\"KTO\" TEXT(30), \"PLIK\" MEMO TEXT, \"OPIS\" MEMO TEXT)");
         p.wykonaj("CREATE UNIQUE INDEX \"I_WYKONANE\" ON \"WYKONANE\" (\"ROKMIES\", \"NR\")");
     }},
};

/// A name that no file has yet, beside the database: Tornel-wersja-0-20010731-1530.mdb.
QString nazwaKopii(const QFileInfo& plik, int wersja) {
    const QString trzon = QStringLiteral("%1-wersja-%2-%3")
                              .arg(plik.completeBaseName())
                              .arg(wersja)
                              .arg(plik.lastModified().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    const QString koncowka = plik.suffix().isEmpty() ? QString() : QLatin1Char('.') + plik.suffix();
    for (int i = 1;; ++i) {
        QString nazwa =
            plik.dir().filePath(trzon + (i == 1 ? QString() : QStringLiteral("-%1").arg(i)) + koncowka);
        if (!QFileInfo::exists(nazwa)) return nazwa;
    }
}

[[noreturn]] void zglosBrakKopii(const QString& zrodlo, const QString& cel, const QString& powod) {
    throw BladBazy(QStringLiteral("Nie można zrobić kopii „%1” bazy danych „%2” przed zmianą jej wersji: %3.")
                       .arg(cel, zrodlo, powod));
}

/// Page by page through the engine: closing the file after an ordinary copy would drop the engine's lock.
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

QString kopiuj(Polaczenie& polaczenie, int wersja) {
    QString cel = nazwaKopii(QFileInfo(polaczenie.sciezka()), wersja);
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
    return cel;
}

} // namespace

std::span<const KrokWersji> KrokiWersji() { return kKroki; }

int WersjaPliku(Polaczenie& polaczenie) {
    Instrukcja pytanie(polaczenie, "PRAGMA user_version");
    return pytanie.wiersz() ? static_cast<int>(pytanie.liczba(0)) : 0;
}

void UstawWersje(Polaczenie& polaczenie, int wersja) {
    polaczenie.wykonaj("PRAGMA user_version=" + std::to_string(wersja));
}

std::optional<ZmianaWersji> DoprowadzDoWersji(Polaczenie& polaczenie, std::span<const KrokWersji> kroki) {
    const int wersja = WersjaPliku(polaczenie), docelowa = static_cast<int>(kroki.size());
    if (wersja == docelowa) return std::nullopt;
    if (wersja < 0 || wersja > docelowa)
        throw BladBazy(
            QStringLiteral("Nie można otworzyć bazy danych „%1”: ma wersję danych %2, a ten program zna "
                           "wersje do %3. Potrzebny jest nowszy program.")
                .arg(polaczenie.sciezka())
                .arg(wersja)
                .arg(docelowa));
    const QString kopia = kopiuj(polaczenie, wersja);
    Transakcja transakcja(polaczenie,
                          QStringLiteral("Zmiana wersji bazy danych z %1 na %2").arg(wersja).arg(docelowa));
    for (const KrokWersji& krok : kroki.subspan(static_cast<std::size_t>(wersja))) {
        try {
            krok.wykonaj(polaczenie);
        } catch (const Blad& blad) {
            throw BladBazy(QStringLiteral("%1 Krok: %2. Kopia sprzed zmiany: „%3”.")
                               .arg(blad.komunikat(), krok.opis, kopia));
        }
    }
    UstawWersje(polaczenie, docelowa);
    transakcja.zatwierdz();
    return ZmianaWersji{wersja, docelowa, kopia};
}

} // namespace tornel::store
