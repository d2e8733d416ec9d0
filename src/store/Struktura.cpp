#include "store/Struktura.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include "store/WersjaPliku.h"
#include "store/ZapisDziennika.h"

namespace tornel::store {

namespace {

QByteArray typSql(const KolumnaDef& k) {
    const QByteArray rozmiar = "(" + QByteArray::number(k.rozmiar) + ")";
    switch (k.typ) {
    case Typ::Byte:
        return "BYTE";
    case Typ::Short:
        return "SHORT";
    case Typ::Integer:
        return "INTEGER";
    case Typ::Currency:
        return "CURRENCY";
    case Typ::Single:
        return "SINGLE";
    case Typ::Double:
        return "DOUBLE";
    case Typ::Text:
        return "TEXT" + rozmiar;
    case Typ::Char:
        return "CHAR" + rozmiar;
    // The second word gives the column text affinity; MEMO alone would turn a note of digits into a number.
    case Typ::Memo:
        return "MEMO TEXT";
    case Typ::Date:
        return "DATE";
    }
    return {};
}

} // namespace

std::string PolecenieTabeli(const TabelaDef& tabela, const QString& nazwa) {
    QByteArray kolumny;
    for (const KolumnaDef& k : tabela.kolumny)
        kolumny += (kolumny.isEmpty() ? "" : ", ") + nazwaSql(k.nazwa) + " " + typSql(k) +
                   (k.wymagana ? " NOT NULL" : "");
    return "CREATE TABLE " + nazwaSql(nazwa.toStdString()).toStdString() + " (" + kolumny.toStdString() + ")";
}

std::vector<std::string> PoleceniaIndeksow(const TabelaDef& tabela, const QString& nazwa) {
    std::vector<std::string> wynik;
    if (tabela.klucz.empty()) return wynik;
    const std::string cudzyslow = nazwaSql(nazwa.toStdString()).toStdString();
    // Contracts and declarations have keys of their own and are searched by employee as well.
    if (tabela.numer("PRC_ID") >= 0 && !teSameNazwy(tabela.klucz[0], "PRC_ID"))
        wynik.push_back("CREATE INDEX " + nazwaSql("P_" + nazwa.toStdString()).toStdString() + " ON " +
                        cudzyslow + " (\"PRC_ID\")");
    QByteArray klucz;
    for (const std::string_view k : tabela.kluczPliku()) klucz += (klucz.isEmpty() ? "" : ", ") + nazwaSql(k);
    const char* unikalny = tabela.rodzajKlucza == Klucz::Jednoznaczny ? "UNIQUE " : "";
    wynik.push_back(std::string("CREATE ") + unikalny + "INDEX " +
                    nazwaSql("I_" + nazwa.toStdString()).toStdString() + " ON " + cudzyslow + " (" +
                    klucz.toStdString() + ")");
    return wynik;
}

void UtworzTabele(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa) {
    polaczenie.wykonaj(PolecenieTabeli(tabela, nazwa));
    UtworzIndeksy(polaczenie, tabela, nazwa);
    if (ZapisDziennika* dziennik = polaczenie.dziennik()) dziennik->utworzonaTabela(nazwa, tabela);
}

void UtworzIndeksy(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa) {
    for (const std::string& polecenie : PoleceniaIndeksow(tabela, nazwa)) polaczenie.wykonaj(polecenie);
}

void UsunTabele(Polaczenie& polaczenie, const QString& nazwa) {
    if (ZapisDziennika* dziennik = polaczenie.dziennik()) dziennik->usuwanaTabela(nazwa);
    polaczenie.wykonaj("DROP TABLE " + nazwaSql(nazwa.toStdString()).toStdString());
}

void UtworzBaze(const QString& sciezka) {
    Polaczenie polaczenie(sciezka, Polaczenie::Sposob::Nowa);
    try {
        Transakcja transakcja(polaczenie, u"Nowa baza danych");
        for (const TabelaDef* tabela : schemat::Tabele)
            UtworzTabele(polaczenie, *tabela, napis(tabela->nazwa));
        UstawWersje(polaczenie, static_cast<int>(KrokiWersji().size()));
        transakcja.zatwierdz();
    } catch (...) {
        UsunPlikBazy(sciezka);
        throw;
    }
}

} // namespace tornel::store
