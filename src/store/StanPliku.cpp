#include "store/StanPliku.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include "store/WersjaPliku.h"
#include <functional>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUrl>
#include <set>
#include <sqlite3.h>

namespace tornel::store {

namespace {

constexpr int kZnakProgramu = 0x544F524E; // as `Polaczenie` marks its files
constexpr int kCyfrMiesiaca = 6;

using PoWierszu = std::function<void(sqlite3_stmt*)>;

[[noreturn]] void zglosOdczyt(sqlite3* baza, const QString& sciezka) {
    throw BladBazy(QStringLiteral("Nie można odczytać pliku „%1”: %2.")
                       .arg(sciezka, QString::fromUtf8(sqlite3_errmsg(baza))));
}

void czytajWiersze(sqlite3* baza, const QString& sciezka, const QByteArray& sql, const PoWierszu& czynnosc) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(baza, sql.constData(), -1, &stmt, nullptr) != SQLITE_OK)
        zglosOdczyt(baza, sciezka);
    const auto koniec = qScopeGuard([&] { sqlite3_finalize(stmt); });
    int wynik = 0;
    while ((wynik = sqlite3_step(stmt)) == SQLITE_ROW) czynnosc(stmt);
    if (wynik != SQLITE_DONE) zglosOdczyt(baza, sciezka);
}

QString tekstKolumny(sqlite3_stmt* stmt, int nr) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, nr)));
}

qint64 jednaLiczba(sqlite3* baza, const QString& sciezka, const QByteArray& sql) {
    qint64 wynik = 0;
    czytajWiersze(baza, sciezka, sql, [&](sqlite3_stmt* s) { wynik = sqlite3_column_int64(s, 0); });
    return wynik;
}

QStringList tabelePliku(sqlite3* baza, const QString& sciezka) {
    QStringList wynik;
    czytajWiersze(
        baza, sciezka,
        "SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%' ORDER BY name",
        [&](sqlite3_stmt* s) { wynik += tekstKolumny(s, 0); });
    return wynik;
}

QByteArray nazwaTabeli(const QString& tabela) { return nazwaSql(tabela.toStdString()); }

/// Each damaged table with the engine's first word on it.
QStringList uszkodzone(sqlite3* baza, const QString& sciezka) {
    QStringList tabele, wynik;
    try {
        tabele = tabelePliku(baza, sciezka);
    } catch (const BladBazy&) {
        return {QStringLiteral("spis tabel: nie można go odczytać")};
    }
    for (const QString& tabela : tabele) {
        QString powod;
        try {
            czytajWiersze(baza, sciezka, "PRAGMA integrity_check(" + nazwaTabeli(tabela) + ")",
                          [&](sqlite3_stmt* s) {
                              if (powod.isEmpty()) powod = tekstKolumny(s, 0);
                          });
        } catch (const BladBazy&) {
            powod = QString::fromUtf8(sqlite3_errmsg(baza));
        }
        if (powod != QLatin1String("ok")) wynik += QStringLiteral("%1: %2").arg(tabela, powod.simplified());
    }
    return wynik;
}

/// The schema of a table of the file, null for one that the schema does not know.
const TabelaDef* schematTabeli(const QString& nazwa) {
    const std::string szukana = nazwa.toStdString();
    for (const TabelaDef* def : schemat::Tabele)
        if (teSameNazwy(def->nazwa, szukana)) return def;
    if (nazwa.size() <= kCyfrMiesiaca) return nullptr;
    for (const TabelaDef* def : schemat::TabeleMiesiaca)
        if (teSameNazwy(def->nazwa, nazwa.chopped(kCyfrMiesiaca).toStdString())) return def;
    return nullptr;
}

StanPliku stanPoBledzie(int kod) {
    switch (kod & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StanPliku::Zajety;
    case SQLITE_NOTADB:
        return StanPliku::NieBaza;
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return StanPliku::BezZapisu;
    default:
        return StanPliku::Uszkodzony;
    }
}

ZbadanyPlik zbadajOtwarty(sqlite3* baza, const QString& sciezka) {
    if (sqlite3_db_readonly(baza, "main") == 1) return {StanPliku::BezZapisu, {}};
    // A write that is taken back: it meets the locks and rights of the file, its folder and its journal.
    const QByteArray proba =
        "BEGIN EXCLUSIVE; PRAGMA application_id=" + QByteArray::number(kZnakProgramu) + "; ROLLBACK";
    try {
        const qint64 znak = jednaLiczba(baza, sciezka, "PRAGMA application_id");
        if (sqlite3_exec(baza, proba.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            const int kod = sqlite3_errcode(baza);
            sqlite3_exec(baza, "ROLLBACK", nullptr, nullptr, nullptr);
            const StanPliku stan = stanPoBledzie(kod);
            return {stan, stan == StanPliku::Uszkodzony ? uszkodzone(baza, sciezka) : QStringList()};
        }
        if (znak != kZnakProgramu) return {StanPliku::NieBaza, {}};
        if (jednaLiczba(baza, sciezka, "PRAGMA user_version") > static_cast<qint64>(KrokiWersji().size()))
            return {StanPliku::Nowszy, {}};
        QStringList tabele = uszkodzone(baza, sciezka);
        if (tabele.isEmpty()) tabele = BrakiBudowy(baza);
        return {tabele.isEmpty() ? StanPliku::Dobry : StanPliku::Uszkodzony, tabele};
    } catch (const BladBazy&) {
        const StanPliku stan = stanPoBledzie(sqlite3_errcode(baza));
        return {stan, stan == StanPliku::Uszkodzony ? uszkodzone(baza, sciezka) : QStringList()};
    }
}

} // namespace

ZbadanyPlik ZbadajPlik(const QString& sciezka) {
    const QFileInfo plik(sciezka);
    if (!plik.isFile()) return {StanPliku::Brak, {}};
    sqlite3* baza = nullptr;
    const int wynik = sqlite3_open_v2(sciezka.toUtf8().constData(), &baza,
                                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    const auto koniec = qScopeGuard([&] { sqlite3_close_v2(baza); });
    if (wynik != SQLITE_OK) return {stanPoBledzie(wynik), {}};
    return zbadajOtwarty(baza, sciezka);
}

QStringList BrakiBudowy(sqlite3* baza) {
    const QString sciezka = QString::fromUtf8(sqlite3_db_filename(baza, "main"));
    QStringList wynik;
    std::set<const TabelaDef*> obecne;
    for (const QString& tabela : tabelePliku(baza, sciezka)) {
        const TabelaDef* def = schematTabeli(tabela);
        if (!def) continue;
        obecne.insert(def);
        std::set<int> kolumny;
        czytajWiersze(baza, sciezka, "PRAGMA table_info(" + nazwaTabeli(tabela) + ")",
                      [&](sqlite3_stmt* s) { kolumny.insert(def->numer(tekstKolumny(s, 1).toStdString())); });
        QStringList brak;
        for (int i = 0; i < static_cast<int>(def->kolumny.size()); ++i)
            if (!kolumny.contains(i)) brak += napis(def->nr(i).def().nazwa);
        if (!brak.isEmpty())
            wynik += QStringLiteral("%1: brak kolumn %2").arg(tabela, brak.join(QStringLiteral(", ")));
    }
    for (const TabelaDef* def : schemat::Tabele)
        if (!obecne.contains(def)) wynik += QStringLiteral("%1: brak tabeli").arg(napis(def->nazwa));
    return wynik;
}

PodgladPliku::PodgladPliku(const QString& sciezka) : sciezka_(sciezka) {
    // Nobody writes while it is read, so the engine needs neither locks nor a journal.
    const QByteArray adres =
        QUrl::fromLocalFile(QFileInfo(sciezka).absoluteFilePath()).toEncoded() + "?immutable=1";
    try {
        if (sqlite3_open_v2(adres.constData(), &baza_,
                            SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI,
                            nullptr) != SQLITE_OK)
            zglosOdczyt(baza_, sciezka_);
        if (jednaLiczba(baza_, sciezka_, "PRAGMA application_id") != kZnakProgramu)
            throw BladBazy(QStringLiteral("Plik „%1” nie jest bazą danych programu.").arg(sciezka_));
    } catch (...) {
        sqlite3_close_v2(std::exchange(baza_, nullptr));
        throw;
    }
}

PodgladPliku::~PodgladPliku() { sqlite3_close_v2(baza_); }

int PodgladPliku::wersja() const {
    return static_cast<int>(jednaLiczba(baza_, sciezka_, "PRAGMA user_version"));
}

std::map<QString, qint64> PodgladPliku::liczbyWierszy() const {
    std::map<QString, qint64> wynik;
    for (const QString& tabela : tabelePliku(baza_, sciezka_))
        wynik[tabela] = jednaLiczba(baza_, sciezka_, "SELECT count(*) FROM " + nazwaTabeli(tabela));
    return wynik;
}

QStringList PodgladPliku::uszkodzoneTabele() const { return uszkodzone(baza_, sciezka_); }

PodgladPliku::Tresc PodgladPliku::tresc() const {
    Tresc wynik;
    czytajWiersze(baza_, sciezka_, "SELECT count(*), min(ROK||MIES), max(ROK||MIES) FROM PLACE",
                  [&](sqlite3_stmt* s) {
                      wynik.miesiecy = sqlite3_column_int(s, 0);
                      wynik.pierwszy = RokMies::zId(tekstKolumny(s, 1).toLongLong());
                      wynik.ostatni = RokMies::zId(tekstKolumny(s, 2).toLongLong());
                  });
    wynik.pracownikow = static_cast<int>(jednaLiczba(baza_, sciezka_, "SELECT count(*) FROM PRACDP"));
    return wynik;
}

QString PodgladPliku::stala(int num) const {
    QString wynik;
    czytajWiersze(baza_, sciezka_, "SELECT Wart FROM KON WHERE Num=" + QByteArray::number(num),
                  [&](sqlite3_stmt* s) { wynik = tekstKolumny(s, 0); });
    return wynik;
}

} // namespace tornel::store
