#include "store/WersjaPliku.h"
#include "common/Blad.h"
#include "store/Dziennik.h"
#include "store/KopiaPliku.h"
#include <QDateTime>
#include <QFileInfo>

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
    {u"dziennik zmian",
     [](Polaczenie& p) {
         p.wykonaj("CREATE TABLE \"DZIENNIK\" (\"STAN\" BYTE NOT NULL, \"ID\" INTEGER NOT NULL, "
                   "\"DZIEN\" DATE, \"CZAS\" TEXT(8), \"KTO\" TEXT(30), \"CZYNNOSC\" MEMO TEXT, "
                   "\"TABELE\" MEMO TEXT, \"WIERSZY\" INTEGER, \"OSOBY\" MEMO TEXT, \"DOTYCZY\" INTEGER)");
         p.wykonaj("CREATE UNIQUE INDEX \"I_DZIENNIK\" ON \"DZIENNIK\" (\"STAN\", \"ID\")");
         p.wykonaj("CREATE TABLE \"DZIENNIK_ZMIANY\" (\"WPIS\" INTEGER NOT NULL, \"NR\" INTEGER NOT NULL, "
                   "\"DANE\" MEMO TEXT)");
         p.wykonaj("CREATE UNIQUE INDEX \"I_DZIENNIK_ZMIANY\" ON \"DZIENNIK_ZMIANY\" (\"WPIS\", \"NR\")");
     }},
    {u"zmiany i rozwiązanie umów o pracę",
     [](Polaczenie& p) {
         for (const char* kolumna :
              {"\"zmienia\" SHORT", "\"wyp_2tyg\" TEXT(1)", "\"inne_war\" MEMO TEXT", "\"sposob\" SHORT",
               "\"data_wyp\" DATE", "\"data_roz\" DATE", "\"przyczyna\" MEMO TEXT"})
             p.wykonaj(std::string("ALTER TABLE \"UMOP\" ADD COLUMN ") + kolumna);
     }},
};

/// Named with the file's version and the time of its last change.
QString kopiaPrzedZmianaWersji(Polaczenie& polaczenie, int wersja) {
    QString cel = NazwaKopii(polaczenie.sciezka(), QStringLiteral("wersja-%1").arg(wersja),
                             QFileInfo(polaczenie.sciezka()).lastModified());
    KopiujOtwarta(polaczenie, cel);
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
    const QString kopia = kopiaPrzedZmianaWersji(polaczenie, wersja);
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
    // Rows are no longer where the entries of the older file say.
    ZakonczLancuch(polaczenie, polaczenie.czynnosc());
    transakcja.zatwierdz();
    return ZmianaWersji{wersja, docelowa, kopia};
}

} // namespace tornel::store
