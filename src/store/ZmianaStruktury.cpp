#include "store/ZmianaStruktury.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/PrzeliczenieTypu.h"
#include "store/Schemat.h"
#include "store/Struktura.h"
#include <bit>

namespace tornel::store {

namespace {

/// A column as the file has it.
struct KolumnaPliku {
    QString nazwa;
    QString typ;
    bool wymagana = false;
    QString domyslna; ///< SQL text, empty for none
    int klucz = 0;    ///< place in the primary key, 0 for none
};

std::string wCudzyslowie(const QString& nazwa) { return nazwaSql(nazwa.toStdString()).toStdString(); }

/// The second word gives a note text affinity, as in a new database.
QString typWPliku(const QString& typSql) {
    return typSql == QLatin1String("MEMO") ? QStringLiteral("MEMO TEXT") : typSql;
}

void wymagajTypu(const QString& typSql) {
    if (typSql.isEmpty()) throw Blad(QStringLiteral("Nieznany typ pola."));
}

QList<KolumnaPliku> kolumnyPliku(Polaczenie& polaczenie, const QString& tabela) {
    QList<KolumnaPliku> wynik;
    Instrukcja i(polaczenie,
                 "SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?) ORDER BY cid");
    for (i.wiaz(0, tabela); i.wiersz();)
        wynik +=
            KolumnaPliku{i.tekst(0), i.tekst(1), i.liczba(2) != 0, i.tekst(3), static_cast<int>(i.liczba(4))};
    return wynik;
}

std::string opisKolumny(const KolumnaPliku& k, qsizetype wKluczu) {
    QString opis = k.typ;
    if (k.klucz > 0 && wKluczu == 1) opis += QStringLiteral(" PRIMARY KEY");
    if (k.wymagana) opis += QStringLiteral(" NOT NULL");
    if (!k.domyslna.isEmpty()) opis += QStringLiteral(" DEFAULT ") + k.domyslna;
    return wCudzyslowie(k.nazwa) + " " + opis.toStdString();
}

std::string sqlTabeli(const QString& nazwa, const QList<KolumnaPliku>& kolumny) {
    QList<KolumnaPliku> klucz;
    for (const KolumnaPliku& k : kolumny)
        if (k.klucz > 0) klucz += k;
    std::ranges::sort(klucz, {}, &KolumnaPliku::klucz);
    std::string sql = "CREATE TABLE " + wCudzyslowie(nazwa) + " (", przecinek;
    for (const KolumnaPliku& k : kolumny) {
        sql += przecinek + opisKolumny(k, klucz.size());
        przecinek = ", ";
    }
    if (klucz.size() > 1) {
        sql += ", PRIMARY KEY (";
        przecinek.clear();
        for (const KolumnaPliku& k : klucz) {
            sql += przecinek + wCudzyslowie(k.nazwa);
            przecinek = ", ";
        }
        sql += ")";
    }
    return sql + ")";
}

/// Indexes, triggers and whatever else hangs on a table, as the statements that make them.
QList<std::string> dodatkiTabeli(Polaczenie& polaczenie, const QString& tabela) {
    QList<std::string> wynik;
    Instrukcja i(polaczenie,
                 "SELECT sql FROM sqlite_master WHERE tbl_name=? COLLATE NOCASE AND type<>'table' AND "
                 "sql IS NOT NULL");
    for (i.wiaz(0, tabela); i.wiersz();) wynik += i.tekst(0).toStdString();
    return wynik;
}

/// The stored value of a column of the type that stands in the file; nothing for one that is not of its type.
std::optional<Wartosc> czytajKomorke(const Instrukcja& i, int nr, std::optional<Typ> typ) {
    const int jest = i.typ(nr);
    if (jest == SQLITE_NULL) return Wartosc(Null);
    if (!typ || jestTekstem(*typ)) {
        if (jest == SQLITE_TEXT) return Wartosc(i.tekst(nr));
        if (typ) return {};
        if (jest == SQLITE_INTEGER) return Wartosc(i.liczba(nr));
        return jest == SQLITE_FLOAT ? std::optional<Wartosc>(i.rzeczywista(nr)) : std::nullopt;
    }
    const auto s = slowo(i, nr, *typ, jest);
    if (!s) return {};
    switch (rodzajWartosci(*typ)) {
    case RodzajWartosci::Kwota:
        return Wartosc(Waluta::zSurowej(*s));
    case RodzajWartosci::Rzeczywista:
        return Wartosc(std::bit_cast<double>(*s));
    case RodzajWartosci::Data:
        return Wartosc(QDate::fromJulianDay(*s));
    default:
        return Wartosc(*s);
    }
}

/// Carries one column over row by row; the others were copied by the engine.
void przeliczKolumne(Polaczenie& polaczenie, const QString& stara, const QString& nowa, const QString& pole,
                     const QString& dawnyTyp, const QString& nowyTyp) {
    int dawnaSzerokosc = 0, szerokosc = 0;
    const std::optional<Typ> dawny = TypZPliku(dawnyTyp, dawnaSzerokosc), typ = TypZPliku(nowyTyp, szerokosc);
    if (!typ) throw Blad(QStringLiteral("Nieznany typ pola."));
    Instrukcja czytaj(polaczenie, "SELECT rowid, " + wCudzyslowie(pole) + " FROM " + wCudzyslowie(stara));
    Instrukcja pisz(polaczenie,
                    "UPDATE " + wCudzyslowie(nowa) + " SET " + wCudzyslowie(pole) + "=? WHERE rowid=?");
    while (czytaj.wiersz()) {
        const auto wartosc = czytajKomorke(czytaj, 1, dawny);
        const auto przeliczona = wartosc ? PrzeliczWartosc(*wartosc, *typ, szerokosc) : std::nullopt;
        if (!przeliczona)
            throw Blad(QStringLiteral("Wartość pola %1 w wierszu nr %2 tabeli %3 nie mieści się w typie %4.")
                           .arg(pole)
                           .arg(czytaj.liczba(0))
                           .arg(stara, nowyTyp));
        wiazWartosc(pisz, 0, *przeliczona);
        pisz.wiaz(1, czytaj.liczba(0)).wykonaj();
    }
}

/// Of a table that the update has made, once its key is complete.
void zalozIndeksySchematu(Polaczenie& polaczenie, const QString& tabela) {
    for (const TabelaDef* def : schemat::Tabele) {
        if (!teSameNazwy(def->nazwa, tabela.toStdString()) || def->klucz.empty()) continue;
        if (!dodatkiTabeli(polaczenie, tabela).isEmpty()) return;
        const QList<KolumnaPliku> kolumny = kolumnyPliku(polaczenie, tabela);
        const auto jest = [&](std::string_view nazwa) {
            return std::ranges::any_of(
                kolumny, [&](const auto& p) { return teSameNazwy(p.nazwa.toStdString(), nazwa); });
        };
        if (def->numer("PRC_ID") >= 0 && !jest("PRC_ID")) return;
        if (!std::ranges::all_of(def->kluczPliku(), jest)) return;
        UtworzIndeksy(polaczenie, *def, napis(def->nazwa));
    }
}

} // namespace

QString ZmianaStruktury::TekstUtworzenia(const QString& tabela) {
    return QStringLiteral("CREATE TABLE ") + tabela + u';';
}

QString ZmianaStruktury::TekstDodania(const QString& tabela, const QString& pole, const QString& typSql) {
    return QStringLiteral("ALTER TABLE ") + tabela + QStringLiteral(" ADD ") + pole + u' ' + typSql + u';';
}

QString ZmianaStruktury::TekstZmiany(const QString& tabela, const QString& pole, const QString& typSql) {
    return QStringLiteral("ALTER TABLE ") + tabela + QStringLiteral(" ALTER COLUMN ") + pole + u' ' + typSql +
           u';';
}

void ZmianaStruktury::UtworzTabele(const QString& tabela) {
    if (polaczenie_.jestTabela(tabela)) throw Blad(QStringLiteral("Tabela %1 już istnieje.").arg(tabela));
    bezPol_.insert(tabela);
}

void ZmianaStruktury::DodajPole(const QString& tabela, const QString& pole, const QString& typSql) {
    wymagajTypu(typSql);
    const std::string kolumna = wCudzyslowie(pole) + " " + typWPliku(typSql).toStdString();
    Transakcja akcja(polaczenie_, QStringLiteral("Dodanie pola %1 do tabeli %2").arg(pole, tabela));
    if (bezPol_.contains(tabela))
        polaczenie_.wykonaj("CREATE TABLE " + wCudzyslowie(tabela) + " (" + kolumna + ")");
    else
        polaczenie_.wykonaj("ALTER TABLE " + wCudzyslowie(tabela) + " ADD COLUMN " + kolumna);
    if (bezPol_.contains(tabela) || nowe_.contains(tabela)) zalozIndeksySchematu(polaczenie_, tabela);
    akcja.zatwierdz();
    if (bezPol_.remove(tabela)) nowe_.insert(tabela);
}

void ZmianaStruktury::ZmienPole(const QString& tabela, const QString& pole, const QString& typSql) {
    wymagajTypu(typSql);
    QList<KolumnaPliku> kolumny = kolumnyPliku(polaczenie_, tabela);
    const auto zmieniana = std::ranges::find_if(
        kolumny, [&](const KolumnaPliku& k) { return k.nazwa.compare(pole, Qt::CaseInsensitive) == 0; });
    if (zmieniana == kolumny.end()) throw Blad(QStringLiteral("Nie ma pola %1.").arg(pole));
    const QString dawnyTyp = zmieniana->typ;
    zmieniana->typ = typWPliku(typSql);

    Transakcja akcja(polaczenie_, QStringLiteral("Zmiana pola %1 w tabeli %2").arg(pole, tabela));
    const QString nowa = tabela + QStringLiteral("__nowa");
    const QList<std::string> dodatki = dodatkiTabeli(polaczenie_, tabela);
    polaczenie_.wykonaj(sqlTabeli(nowa, kolumny));
    std::string nazwy = "rowid";
    for (const KolumnaPliku& k : kolumny) nazwy += ", " + wCudzyslowie(k.nazwa);
    polaczenie_.wykonaj("INSERT INTO " + wCudzyslowie(nowa) + " (" + nazwy + ") SELECT " + nazwy + " FROM " +
                        wCudzyslowie(tabela));
    przeliczKolumne(polaczenie_, tabela, nowa, pole, dawnyTyp, typSql);
    polaczenie_.wykonaj("DROP TABLE " + wCudzyslowie(tabela));
    polaczenie_.wykonaj("ALTER TABLE " + wCudzyslowie(nowa) + " RENAME TO " + wCudzyslowie(tabela));
    for (const std::string& sql : dodatki) polaczenie_.wykonaj(sql);
    akcja.zatwierdz();
}

} // namespace tornel::store
