#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "personnel/UmowyOPrace.h"
#include "reports/umowy/PismaOPrace.h"
#include "store/Sesja.h"
#include <QDate>
#include <QJsonObject>

namespace tornel::cli {

using schemat::UMOP;

namespace {

qint64 numerUmowyOPrace(const Wywolanie& w) {
    return liczbaZTekstu(w.argumenty.pozycje.first(), 1, zakresTypu(Typ::Short).second,
                         QStringLiteral("numer umowy"));
}

QDate podanyDzien(const Wywolanie& w) {
    const auto dzien = CzytajDate(w.argumenty.wartosc(QStringLiteral("data")));
    if (!dzien) throw ZleUzycie(QStringLiteral("Podaje się --data dd-mm-rrrr."));
    return *dzien;
}

void piszNumer(Wywolanie& w, qint64 numer) {
    if (w.json())
        w.pisz(QJsonObject{{QStringLiteral("numer"), numer}});
    else
        w.pisz(QString::number(numer));
}

int nowaUmowaOPrace(Wywolanie& w) {
    const QDate dzien = podanyDzien(w);
    const QList<qint64> osoby = podaniPracownicy(w);
    if (osoby.size() != 1) throw ZleUzycie(QStringLiteral("Podaje się --pracownik N i --data dd-mm-rrrr."));
    piszNumer(w, UmowyOPrace(w.otoczenie()).Nowa(osoby.first(), dzien));
    return status::Wykonane;
}

int zmianaUmowyOPrace(Wywolanie& w) {
    const QDate dzien = podanyDzien(w);
    piszNumer(w, UmowyOPrace(w.otoczenie()).Zmiana(numerUmowyOPrace(w), dzien));
    return status::Wykonane;
}

/// The columns that can be typed; the others make the row what it is.
std::optional<Kolumna> polePoNazwie(const QString& nazwa) {
    static constexpr std::string_view kStale[] = {"UMOPID", "prc_id", "Naz", "Imie", "zmienia"};
    const std::string kolumna = nazwa.toStdString();
    const int nr = UMOP.numer(kolumna);
    const bool stala = std::ranges::any_of(kStale, [&](auto s) { return UMOP.numer(s) == nr; });
    return nr < 0 || stala ? std::nullopt : std::optional(UMOP.nr(nr));
}

/// What the text is in a column of this kind. Throws `Blad`.
Wartosc wartoscPola(Kolumna kolumna, const QString& tekst) {
    const auto niezrozumiale = [&] {
        return Blad(QStringLiteral("Pole %1 nie rozumie tekstu „%2”.")
                        .arg(QLatin1String(kolumna.def().nazwa.data(),
                                           static_cast<qsizetype>(kolumna.def().nazwa.size())),
                             tekst));
    };
    switch (rodzajWartosci(kolumna.def().typ)) {
    case RodzajWartosci::Kwota:
        if (const auto kwota = CzytajKwote(tekst)) return *kwota;
        throw niezrozumiale();
    case RodzajWartosci::Calkowita:
        if (const auto liczba = CzytajLiczbe(tekst, 0, zakresTypu(Typ::Short).second)) return *liczba;
        throw niezrozumiale();
    case RodzajWartosci::Data:
        if (tekst.trimmed().isEmpty()) return std::monostate{};
        if (const auto data = CzytajWpisanaDate(tekst)) return *data;
        throw niezrozumiale();
    default:
        if (kolumna.def().rozmiar > 0 && tekst.size() > kolumna.def().rozmiar)
            throw Blad(
                QStringLiteral("Tekst jest za długi, pole mieści znaków: %1.").arg(kolumna.def().rozmiar));
        return tekst;
    }
}

int poleUmowyOPrace(Wywolanie& w) {
    QList<std::pair<Kolumna, Wartosc>> pola;
    for (const QString& argument : w.argumenty.pozycje.mid(1)) {
        const QString nazwa = argument.section(QLatin1Char('='), 0, 0).trimmed();
        const auto kolumna = polePoNazwie(nazwa);
        if (!kolumna || !argument.contains(QLatin1Char('=')))
            throw ZleUzycie(QStringLiteral("Umowa o pracę nie ma pola: %1.").arg(nazwa));
        pola.append({*kolumna, wartoscPola(*kolumna, argument.section(QLatin1Char('='), 1))});
    }
    const qint64 numer = numerUmowyOPrace(w);
    UmowyOPrace umowy(w.otoczenie());
    if (!umowy.Ustaw(numer)) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(numer));
    for (const auto& [kolumna, wartosc] : std::as_const(pola)) umowy.tabela().ustaw(kolumna, wartosc);
    umowy.Wpisz();
    for (const QString& uwaga : umowy.uwagi(*umowy.umowa(numer)))
        w.rozmowa.komunikat(uwaga, Styl::Wykrzyknik);
    return status::Wykonane;
}

int usunUmoweOPrace(Wywolanie& w) {
    return UmowyOPrace(w.otoczenie()).Usun(numerUmowyOPrace(w)) ? status::Wykonane : status::Odmowa;
}

int warunkiDoKartoteki(Wywolanie& w) {
    return UmowyOPrace(w.otoczenie()).PrzepiszDoKartoteki(numerUmowyOPrace(w)) ? status::Wykonane
                                                                               : status::Odmowa;
}

FiltrUmowOPrace podanyFiltr(const Wywolanie& w) {
    FiltrUmowOPrace filtr;
    const QString pracownik = QStringLiteral("pracownik"), od = QStringLiteral("konczace-od"),
                  dokad = QStringLiteral("konczace-do");
    if (w.argumenty.ma(pracownik)) filtr.prcId = numerPracownikaZTekstu(w.argumenty.wartosc(pracownik));
    if (!w.argumenty.ma(od) && !w.argumenty.ma(dokad)) return filtr;
    const auto pierwszy = CzytajDate(w.argumenty.wartosc(od)),
               ostatni = CzytajDate(w.argumenty.wartosc(dokad));
    if (!pierwszy || !ostatni)
        throw ZleUzycie(QStringLiteral("Podaje się --konczace-od i --konczace-do, dd-mm-rrrr."));
    filtr.konczaceOd = *pierwszy;
    filtr.konczaceDo = *ostatni;
    return filtr;
}

int listaUmowOPrace(Wywolanie& w) {
    const FiltrUmowOPrace filtr = podanyFiltr(w);
    QList<QStringList> wiersze{{QStringLiteral("NR"), QStringLiteral("UMOWA"), QStringLiteral("PRACOWNIK"),
                                QStringLiteral("RODZAJ"), QStringLiteral("OD"), QStringLiteral("DO"),
                                QStringLiteral("STANOWISKO"), QStringLiteral("ETAT"),
                                QStringLiteral("PŁACA")}};
    for (const UmowaOPrace& u : UmowyOPrace(w.otoczenie()).Wczytaj())
        if (filtr.pasuje(u))
            wiersze.append({QString::number(u.id), u.numer, u.osoba(),
                            u.zmienia > 0 ? QStringLiteral("zmiana umowy %1").arg(u.zmienia)
                                          : NazwaRodzajuUmowy(u.rodzaj),
                            FormatDaty(u.warunki.od), FormatDaty(u.koniec()), u.warunki.stanowisko,
                            NapisEtatu(u.warunki.etat, u.warunki.etat2), FormatKwoty(u.warunki.placa)});
    w.piszTabele(wiersze, {true, false, false, false, false, false, false, false, true});
    return status::Wykonane;
}

template <std::shared_ptr<const druk::Uklad> (*Uloz)(Otoczenie&, qint64)>
int wydrukPisma(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    WypiszWydruk(w, *Uloz(w.otoczenie(), numerUmowyOPrace(w)));
    return status::Wykonane;
}

std::shared_ptr<const druk::Uklad> swiadectwoDzis(Otoczenie& otoczenie, qint64 id) {
    return reports::UlozSwiadectwoPracy(otoczenie, id, QDate::currentDate());
}

constexpr QStringView kWyjscie = u"NUMER (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)";

} // namespace

QList<Polecenie> poleceniaUmowOPrace() {
    return {
        {u"wydruk umowa-o-prace", kWyjscie, u"umowa o pracę do podpisania", 1, 1, opcjeWydruku({}),
         wydrukPisma<reports::UlozUmoweOPrace>},
        {u"wydruk zmiana-warunkow", kWyjscie, u"zmiana warunków umowy o pracę", 1, 1, opcjeWydruku({}),
         wydrukPisma<reports::UlozZmianeWarunkow>},
        {u"wydruk wypowiedzenie", kWyjscie, u"wypowiedzenie umowy o pracę", 1, 1, opcjeWydruku({}),
         wydrukPisma<reports::UlozWypowiedzenie>},
        {u"wydruk swiadectwo-pracy", kWyjscie, u"świadectwo pracy", 1, 1, opcjeWydruku({}),
         wydrukPisma<swiadectwoDzis>},
        {u"umowa-o-prace nowa",
         u"--pracownik N --data D",
         u"zakłada umowę o pracę z warunkami z kartoteki, podaje jej numer",
         0,
         0,
         {{u"pracownik", u"N"}, {u"data", u"D"}},
         nowaUmowaOPrace},
        {u"umowa-o-prace zmiana",
         u"NUMER --data D",
         u"zakłada zmianę warunków umowy od tego dnia, podaje jej numer",
         1,
         1,
         {{u"data", u"D"}},
         zmianaUmowyOPrace},
        {u"umowa-o-prace pole",
         u"NUMER POLE=TEKST ...",
         u"wpisuje pola umowy o pracę i zapisuje ją",
         2,
         kDowolnieWiele,
         {},
         poleUmowyOPrace},
        {u"umowa-o-prace kartoteka",
         u"NUMER",
         u"wpisuje warunki umowy do kartoteki pracownika",
         1,
         1,
         {},
         warunkiDoKartoteki},
        {u"umowa-o-prace usun", u"NUMER", u"usuwa umowę o pracę", 1, 1, {}, usunUmoweOPrace},
        {u"umowa-o-prace lista",
         u"[--pracownik N] [--konczace-od D --konczace-do D]",
         u"wypisuje umowy o pracę według nazwisk",
         0,
         0,
         {{u"pracownik", u"N"}, {u"konczace-od", u"D"}, {u"konczace-do", u"D"}},
         listaUmowOPrace},
    };
}

} // namespace tornel::cli
