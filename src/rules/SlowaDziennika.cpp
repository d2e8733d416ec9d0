#include "rules/SlowaDziennika.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/RokMies.h"
#include "rules/SkladnikiPlac.h"
#include "store/Schemat.h"
#include <algorithm>
#include <array>

namespace tornel::rules {

namespace {

struct SlowoTabeli {
    std::string_view tabela; ///< of a month table the prefix
    QStringView slowo;
};

constexpr SlowoTabeli kTabele[] = {
    {"PRACDP", u"dane osobowe"},
    {"PRACSK", u"stałe składniki płacy"},
    {"PRACINF", u"informacje o pracowniku"},
    {"PRACPR", u"zatrudnienie"},
    {"PRACZUS", u"ubezpieczenia"},
    {"RODZINA", u"rodzina"},
    {"UMOP", u"umowy o pracę"},
    {"SZ_PL", u"składniki płac"},
    {"PLACE", u"miesiące: sumy i znaczniki"},
    {"PLACEN", u"miesiące: nazwy składników"},
    {"PLACEK", u"miesiące: kody ZUS"},
    {"PLA", u"lista płac"},
    {"PLB", u"lista płac: składki i nieobecności"},
    {"PLS", u"lista płac: składniki"},
    {"PLD", u"lista płac: okresy składników"},
    {"NADG", u"nadgodziny"},
    {"NADGN", u"nadgodziny: osoby"},
    {"URL", u"urlopy"},
    {"ZW", u"zwolnienia lekarskie"},
    {"KALENDARZ", u"dni wolne"},
    {"UZL", u"umowy zlecenia"},
    {"UOD", u"umowy o dzieło"},
    {"HON", u"honoraria"},
    {"US", u"urzędy skarbowe"},
    {"M_PRACY", u"adresy działalności"},
    {"KONTA", u"konta bankowe"},
    {"ZUS", u"rozliczenia ZUS DRA"},
    {"PIT4", u"deklaracje PIT-4"},
    {"PIT11", u"deklaracja PIT-11"},
    {"PIT40", u"deklaracja PIT-40"},
    {"PIT8B", u"deklaracja PIT-8B"},
    {"ZASILEK", u"zasiłki chorobowe"},
    {"WPISANE", u"kwoty wpisane ręcznie"},
    {"WYKONANE", u"wydruki i pliki"},
    {"KON", u"stałe programu"},
    {"UZYTKOWNICY", u"użytkownicy"},
};

struct SlowoKolumny {
    std::string_view kolumna;
    QStringView slowo;
};

/// One meaning in all tables that have the column.
constexpr SlowoKolumny kKolumny[] = {
    {"PRC_ID", u"numer pracownika"},
    {"PrcId", u"numer pracownika"},
    {"LISTA", u"lista"},
    {"ROK", u"rok"},
    {"MIES", u"miesiąc"},
    {"Naz", u"nazwisko"},
    {"IMIE", u"imię"},
    {"Imie_1", u"imię"},
    {"imie_2", u"drugie imię"},
    {"data_ur", u"data urodzenia"},
    {"miejsce_ur", u"miejsce urodzenia"},
    {"naz_rod", u"nazwisko rodowe"},
    {"pesel", u"PESEL"},
    {"Nip", u"NIP"},
    {"miasto", u"miasto"},
    {"Kod", u"kod pocztowy"},
    {"ulica", u"ulica"},
    {"nr_domu", u"numer domu"},
    {"nr_miesz", u"numer mieszkania"},
    {"data_zatr", u"data zatrudnienia"},
    {"data_zwoln", u"data zwolnienia"},
    {"Zwoln", u"zwolniony"},
    {"dzial", u"dział"},
    {"stanow", u"stanowisko"},
    {"etat", u"etat: licznik"},
    {"etat2", u"etat: mianownik"},
    {"placa_zas", u"płaca zasadnicza"},
    {"Premia_pr", u"premia, %"},
    {"konto", u"konto"},
    {"bank", u"bank"},
    {"czy_konto", u"całość na konto"},
    {"czy_ulga", u"ulga podatkowa"},
    {"us_id", u"urząd skarbowy"},
    {"BRUTTO", u"brutto"},
    {"NETTO", u"dochód"},
    {"KUP", u"koszty uzyskania"},
    {"PPD", u"ulga miesięczna"},
    {"ST_PD", u"stawka podatku, %"},
    {"POD_DOCH", u"podatek dochodowy"},
    {"PODATEK", u"zaliczka na podatek"},
    {"SKL_FP", u"Fundusz Pracy"},
    {"SKL_FGSP", u"FGŚP"},
    {"PRZELEWEM", u"przelewem"},
    {"DODATKI", u"dodatki"},
    {"POTRACENIA", u"potrącenia"},
    {"DO_WYPLATY", u"do wypłaty"},
    {"DN_PR", u"dni przepracowane"},
    {"DN_URL", u"dni urlopu"},
    {"DN_ZAS", u"dni zasiłku"},
    {"DN_RO", u"dni robocze"},
    {"DN_SO", u"soboty"},
    {"DN_NI", u"niedziele"},
    {"DNI_L4_ZUS", u"dni zwolnienia z ZUS"},
    {"DNI_L4_PR", u"dni zwolnienia z zakładu"},
    {"FEPRC", u"emerytalna pracownika"},
    {"FRPRC", u"rentowa pracownika"},
    {"FCPRC", u"chorobowa"},
    {"FEPRD", u"emerytalna pracodawcy"},
    {"FRPRD", u"rentowa pracodawcy"},
    {"FWPRD", u"wypadkowa"},
    {"UBZDR", u"ubezpieczenie zdrowotne"},
    {"UBRUTTOW", u"ubruttowienie"},
    {"WYS_MCS", u"wysłane do banku"},
    {"PACZKA", u"paczka przelewów"},
    {"zza", u"zgłoszenie ZZA"},
    {"akc", u"zablokowany"},
    {"Num", u"numer stałej"},
    {"Wart", u"wartość"},
    {"Nazwa", u"nazwa"},
    {"haslo", u"hasło"},
    {"Typ", u"rodzaj"},
    {"DATA", u"data"},
    {"data_zaw", u"data zawarcia"},
    {"data_wyp", u"data wypłaty"},
    {"PLIK", u"plik"},
    {"OPIS", u"opis"},
    {"RODZAJ", u"rodzaj"},
    {"KWOTA", u"kwota"},
    {"KTO", u"kto"},
    {"DZIEN", u"dzień"},
    {"CZAS", u"czas"},
    {"KOMU", u"komu"},
    {"ROKMIES", u"miesiąc"},
};

/// "DZIEN_7" as the day 7 of a calendar.
std::optional<QString> slowoDnia(std::string_view nazwa) {
    for (const auto& [przedrostek, slowo] :
         {std::pair<std::string_view, QStringView>{"DZIEN_", u"dzień "}, {"OPIS_", u"opis dnia "}})
        if (nazwa.size() > przedrostek.size() &&
            teSameNazwy(nazwa.substr(0, przedrostek.size()), przedrostek))
            return slowo.toString() +
                   QString::fromLatin1(nazwa.data() + przedrostek.size(),
                                       static_cast<qsizetype>(nazwa.size() - przedrostek.size()));
    return std::nullopt;
}

/// "SP_7" as component 7 of the catalogue, with the words before it.
std::optional<QString> slowoSkladnika(std::string_view nazwa, const SkladnikiPlac& skladniki) {
    struct Szereg {
        std::string_view przedrostek;
        bool dodatni;
        QStringView slowo;
    };
    constexpr std::array<Szereg, 6> szeregi{{{"SP_", true, u""},
                                             {"SM_", false, u""},
                                             {"SOD_", true, u"od: "},
                                             {"SDO_", true, u"do: "},
                                             {"DOD_", true, u""},
                                             {"POT_", false, u""}}};
    for (const Szereg& s : szeregi) {
        if (nazwa.size() <= s.przedrostek.size() ||
            !teSameNazwy(nazwa.substr(0, s.przedrostek.size()), s.przedrostek))
            continue;
        const std::string_view cyfry = nazwa.substr(s.przedrostek.size());
        const int n = QByteArray(cyfry.data(), static_cast<qsizetype>(cyfry.size())).toInt();
        if (n < 1 || n > (s.dodatni ? kDodatnich : kUjemnych)) return std::nullopt;
        const QString skladnik = (s.dodatni ? skladniki.dodatni(n) : skladniki.ujemny(n)).nazwa.trimmed();
        return s.slowo.toString() + (skladnik.isEmpty() ? QStringLiteral("składnik %1").arg(n) : skladnik);
    }
    return std::nullopt;
}

QString slowoKolumny(const PakietZmian& pakiet, int nr, const SkladnikiPlac& skladniki) {
    const std::string nazwa = pakiet.kolumny[nr].toStdString();
    if (const auto skladnik = slowoSkladnika(nazwa, skladniki)) return *skladnik;
    if (const auto dzien = slowoDnia(nazwa)) return *dzien;
    const auto slowo =
        std::ranges::find_if(kKolumny, [&](const SlowoKolumny& s) { return teSameNazwy(s.kolumna, nazwa); });
    return slowo == std::end(kKolumny) ? pakiet.kolumny[nr] : slowo->slowo.toString();
}

QString tekstZmiany(const PakietZmian& pakiet, int nr, const WartoscPliku& wartosc) {
    if (std::holds_alternative<WartoscTajna>(wartosc)) return QStringLiteral("(nie jest zapisywane)");
    const auto jest = [&](Typ typ) { return pakiet.szablon && pakiet.szablon->nr(nr).def().typ == typ; };
    if (const auto* n = std::get_if<qint64>(&wartosc))
        return jest(Typ::Currency) ? FormatKwoty(Waluta::zSurowej(*n)) : QString::number(*n);
    if (const auto* r = std::get_if<double>(&wartosc))
        return QString::number(*r, 'g', 15).replace(u'.', u',');
    const auto* t = std::get_if<QByteArray>(&wartosc);
    if (!t) return {};
    QString tekst = QString::fromUtf8(*t);
    if (!jest(Typ::Date)) return tekst;
    const QDate dzien = QDate::fromString(tekst, Qt::ISODate);
    return dzien.isValid() ? FormatDaty(dzien) : tekst;
}

/// Whether the value says nothing of a new or deleted row.
bool domyslna(const WartoscPliku& w) {
    const auto* t = std::get_if<QByteArray>(&w);
    return std::holds_alternative<std::monostate>(w) || w == WartoscPliku(qint64{0}) ||
           w == WartoscPliku(0.0) || (t && t->trimmed().isEmpty());
}

QString napisWiersza(const PakietZmian& pakiet, const ZmianaWiersza& z, const SkladnikiPlac& skladniki) {
    QStringList czesci;
    const auto nazywa = [&](const ZmianaKolumny& k) {
        const std::string nazwa = pakiet.kolumny[k.nr].toStdString();
        return (pakiet.szablon && k.nr == kolumnaPracownika(*pakiet.szablon)) ||
               (pakiet.szablon && std::ranges::any_of(pakiet.szablon->klucz, [&](std::string_view n) {
                    return teSameNazwy(n, nazwa);
                }));
    };
    const bool zKluczem = !z.klucz.empty();
    for (const ZmianaKolumny& k : zKluczem ? z.klucz : z.kolumny) {
        if (!zKluczem && !nazywa(k)) continue;
        const WartoscPliku& w = domyslna(k.nowa) ? k.stara : k.nowa;
        if (!domyslna(w))
            czesci += slowoKolumny(pakiet, k.nr, skladniki) + u' ' + tekstZmiany(pakiet, k.nr, w);
    }
    return czesci.isEmpty() ? QStringLiteral("wiersz %1").arg(z.nrWiersza)
                            : czesci.join(QStringLiteral(", "));
}

} // namespace

QString NapisTabeli(const QString& nazwa) {
    const TabelaDef* szablon = schemat::szablonTabeli(nazwa.toStdString());
    if (!szablon) return nazwa;
    const auto slowo = std::ranges::find_if(
        kTabele, [&](const SlowoTabeli& s) { return teSameNazwy(s.tabela, szablon->nazwa); });
    if (slowo == std::end(kTabele)) return nazwa;
    constexpr int cyfr = 6;
    if (nazwa.size() == static_cast<qsizetype>(szablon->nazwa.size())) return slowo->slowo.toString();
    return slowo->slowo.toString() + u' ' + RokMies::zId(nazwa.right(cyfr).toLongLong()).napis();
}

QString NapisStanu(StanWpisu stan) {
    switch (stan) {
    case StanWpisu::Zdarzenie:
        return {};
    case StanWpisu::Wykonana:
        return QStringLiteral("można cofnąć");
    case StanWpisu::Cofnieta:
        return QStringLiteral("cofnięta, można ponowić");
    case StanWpisu::Zamknieta:
        return QStringLiteral("nie do cofnięcia");
    case StanWpisu::Odcieta:
        return QStringLiteral("cofnięta");
    }
    return {};
}

QList<OpisanaZmiana> OpiszZmiany(const QList<PakietZmian>& pakiety, const SkladnikiPlac& skladniki) {
    QList<OpisanaZmiana> wynik;
    for (const PakietZmian& p : pakiety) {
        const QString rzecz = NapisTabeli(p.tabela);
        for (const ZmianaWiersza& z : p.zmiany) {
            if (z.rodzaj == RodzajZmiany::UtworzonaTabela || z.rodzaj == RodzajZmiany::UsunietaTabela) {
                const bool nowa = z.rodzaj == RodzajZmiany::UtworzonaTabela;
                wynik += {p.tabela,
                          rzecz,
                          nowa ? QStringLiteral("utworzona tabela") : QStringLiteral("usunięta tabela"),
                          {},
                          {},
                          {}};
                continue;
            }
            const QString wiersz = napisWiersza(p, z, skladniki);
            for (const ZmianaKolumny& k : z.kolumny)
                if (z.rodzaj == RodzajZmiany::Zmieniony || !domyslna(k.stara) || !domyslna(k.nowa))
                    wynik += {p.tabela,
                              rzecz,
                              wiersz,
                              slowoKolumny(p, k.nr, skladniki),
                              tekstZmiany(p, k.nr, k.stara),
                              tekstZmiany(p, k.nr, k.nowa)};
        }
    }
    return wynik;
}

} // namespace tornel::rules
