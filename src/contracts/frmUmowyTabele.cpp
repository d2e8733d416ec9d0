#include "contracts/frmUmowyTabele.h"
#include <algorithm>

namespace tornel::contracts {

namespace {

enum class Ramka { Umowa, Naleznosc, Skladki, Rozliczenie, Opis };

struct RamkaEkranu {
    Ramka ramka;
    QStringView zakladka, tytul;
    int kolumn;
};

constexpr QStringView kUmowa = u"Umowa", kSkladki = u"Składki i podatek";
constexpr RamkaEkranu kRamki[] = {
    {Ramka::Umowa, kUmowa, u"UMOWA", 1},
    {Ramka::Naleznosc, kUmowa, u"NALEŻNOŚĆ", 2},
    {Ramka::Skladki, kSkladki, u"SKŁADKI: WSKAŹNIK W PROCENTACH I KWOTA", 1},
    {Ramka::Rozliczenie, kSkladki, u"ROZLICZENIE: WSKAŹNIK W PROCENTACH I KWOTA", 1},
    {Ramka::Opis, kUmowa, u"Informacje opisowe:", 1},
};

struct PoleEkranu {
    Ramka ramka;
    std::string_view kolumna;
    QStringView podpis;
    QStringView opis = {}; ///< where the caption does not tell enough
};

/// In the order of the screen; a kind shows those whose columns its table has.
constexpr PoleEkranu kPola[] = {
    {Ramka::Umowa, "uzl_nr", u"Numer umowy:"},
    {Ramka::Umowa, "uod_nr", u"Numer umowy:"},
    {Ramka::Umowa, "hon_nr", u"Numer umowy:"},
    {Ramka::Umowa, "data_zaw", u"Data zawarcia:"},
    {Ramka::Umowa, "przedm", u"Przedmiot:"},
    {Ramka::Umowa, "powierzono", u"Powierzono:"},
    {Ramka::Umowa, "os1", u"Pierwsza osoba reprezentująca Zamawiającego:"},
    {Ramka::Umowa, "os2", u"Druga osoba reprezentująca Zamawiającego:"},
    {Ramka::Umowa, "data_od", u"Czas trwania:", u"Czas trwania, od"},
    {Ramka::Umowa, "data_do", {}, u"Czas trwania, do"},
    {Ramka::Umowa, "us_id", u"Urząd skarbowy:"},
    {Ramka::Naleznosc, "Brutto", u"Należność brutto:"},
    {Ramka::Naleznosc, "Netto", u"Należność netto:"},
    {Ramka::Naleznosc, "przelewem", u"Przelewem:"},
    {Ramka::Naleznosc, "data_wyp", u"Data wypłaty:"},
    {Ramka::Naleznosc, "paczka", u"Paczka do MCs:"},
    {Ramka::Naleznosc, "wys_mcs", u"Wysłane do MCs:"},
    {Ramka::Skladki, "wskfeprd", u"FE pracodawcy", u"FE pracodawcy, procent"},
    {Ramka::Skladki, "Feprd", {}, u"FE pracodawcy, kwota"},
    {Ramka::Skladki, "wskfeprc", u"FE pracownika", u"FE pracownika, procent"},
    {Ramka::Skladki, "Feprc", {}, u"FE pracownika, kwota"},
    {Ramka::Skladki, "wskfrprd", u"FR pracodawcy", u"FR pracodawcy, procent"},
    {Ramka::Skladki, "Frprd", {}, u"FR pracodawcy, kwota"},
    {Ramka::Skladki, "wskfrprc", u"FR pracownika", u"FR pracownika, procent"},
    {Ramka::Skladki, "Frprc", {}, u"FR pracownika, kwota"},
    {Ramka::Skladki, "wskfcprc", u"FC", u"FC, procent"},
    {Ramka::Skladki, "FcPrc", {}, u"FC, kwota"},
    {Ramka::Skladki, "wskfwprd", u"FW", u"FW, procent"},
    {Ramka::Skladki, "fwprd", {}, u"FW, kwota"},
    {Ramka::Skladki, "wskfp", u"FP", u"FP, procent"},
    {Ramka::Skladki, "Fp", {}, u"FP, kwota"},
    {Ramka::Skladki, "wskfgsp", u"FGŚP", u"FGŚP, procent"},
    {Ramka::Skladki, "Fgsp", {}, u"FGŚP, kwota"},
    {Ramka::Rozliczenie, "wskubzdr", u"Ub. zdrowotne", u"Ub. zdrowotne, procent"},
    {Ramka::Rozliczenie, "Ubzdr", {}, u"Ub. zdrowotne, kwota"},
    {Ramka::Rozliczenie, "wskkuz", u"Koszt uzyskania", u"Koszt uzyskania, procent"},
    {Ramka::Rozliczenie, "koszt_uz", {}, u"Koszt uzyskania, kwota"},
    {Ramka::Rozliczenie, "wskpod", u"Podatek", u"Podatek, procent"},
    {Ramka::Rozliczenie, "Podatek", {}, u"Podatek, kwota"},
    {Ramka::Opis, "inf_opis", {}},
};

constexpr PozycjaDrukuUmow kDrukZlecen[] = {
    {DrukUmow::Umowa, u"Wydruk umowy - zlecenia"},
    {DrukUmow::Rachunek, u"Wydruk rachunku"},
    {DrukUmow::Przelew, u"Wydruk przelewu dla pracownika"},
    {DrukUmow::PrzelewyOkresu, u"Wydruk przelewów od ... do ..."},
    {DrukUmow::PrzelewyPodatku, u"Wydruk przelewów dla podatku"},
    {DrukUmow::MultiCash, u"Przelewy do MultiCash"},
    {DrukUmow::Zestawienie, u"Wydruk listy umów"},
};
constexpr PozycjaDrukuUmow kDrukDziel[] = {
    {DrukUmow::Umowa, u"Wydruk umowy o dzieło"},
    {DrukUmow::Rachunek, u"Wydruk rachunku"},
    {DrukUmow::Przelew, u"Wydruk przelewu dla pracownika"},
    {DrukUmow::PrzelewyOkresu, u"Wydruk przelewów od ... do ..."},
    {DrukUmow::PrzelewyPodatku, u"Wydruk przelewów dla podatku"},
    {DrukUmow::Zestawienie, u"Wydruk listy umów"},
};
constexpr PozycjaDrukuUmow kDrukHonorariow[] = {
    {DrukUmow::Rachunek, u"Wydruk rachunku"},
    {DrukUmow::Przelew, u"Wydruk przelewu dla pracownika"},
    {DrukUmow::PrzelewyOkresu, u"Wydruk przelewów od... do..."},
    {DrukUmow::PrzelewyPodatku, u"Wydruk przelewów dla podatku"},
    {DrukUmow::Zestawienie, u"Wydruk listy honorariów"},
};

constexpr EkranUmow kEkrany[] = {
    {u"UZL", u"frmUZL", u"Umowy - zlecenia", u"Przedmiot zlecenia:", u"Umowa - zlecenie",
     u"Podaj datę zawarcia umowy - zlecenia:",
     u"Nie ma jeszcze umów - zleceń.\nPrzycisk „Nowy” zakłada pierwszą.",
     u"Umowa nie ma urzędu skarbowego, więc rachunek będzie pusty. Wybierz urząd w polu „Urząd skarbowy”.",
     kDrukZlecen},
    {u"UOD", u"frmUOD", u"Umowy o dzieło", u"Przedmiot umowy:", u"Umowa o dzieło",
     u"Podaj datę zawarcia umowy o dzieło:",
     u"Nie ma jeszcze umów o dzieło.\nPrzycisk „Nowy” zakłada pierwszą.",
     u"Umowa nie ma urzędu skarbowego, więc rachunek będzie pusty. Urząd umowa bierze z karty pracownika, "
     u"gdy "
     u"powstaje: wybierz go tam i załóż umowę od nowa.",
     kDrukDziel},
    {u"HON", u"frmHON", u"Honoraria", u"Przedmiot honorarium:", u"Honoraria", u"Podaj datę dla honorarium:",
     u"Nie ma jeszcze honorariów.\nPrzycisk „Nowy” zakłada pierwsze.",
     u"Honorarium nie ma urzędu skarbowego, więc rachunek będzie pusty. Urząd honorarium bierze z karty "
     u"pracownika, gdy powstaje: wybierz go tam i załóż honorarium od nowa.",
     kDrukHonorariow, false},
};

Rodzaj rodzajPola(const PoleUmowy& pole, const Kolumna& kolumna) {
    switch (pole.rodzaj) {
    case RodzajPolaUmowy::Kwota:
    case RodzajPolaUmowy::Przelew:
        return Rodzaj::Kwota;
    case RodzajPolaUmowy::Data:
        return Rodzaj::Data;
    case RodzajPolaUmowy::Urzad:
        return Rodzaj::Wybor;
    case RodzajPolaUmowy::Paczka:
        return Rodzaj::Liczba;
    case RodzajPolaUmowy::Tekst:
        return kolumna.def().typ == store::Typ::Memo ? Rodzaj::Notatka : Rodzaj::Tekst;
    case RodzajPolaUmowy::Wyslane:
        break;
    }
    return Rodzaj::Tekst;
}

} // namespace

const EkranUmow& EkranRodzaju(const RodzajUmowy& rodzaj) {
    const std::string_view nazwa = rodzaj.tabela->nazwa;
    const QLatin1String tabela(nazwa.data(), static_cast<qsizetype>(nazwa.size()));
    return *std::ranges::find_if(kEkrany, [&](const EkranUmow& e) { return e.tabela == tabela; });
}

QString NazwaPolaUmowy(const PoleUmowy& pole) {
    const QLatin1String kolumna(pole.kolumna.data(), static_cast<qsizetype>(pole.kolumna.size()));
    switch (pole.rodzaj) {
    case RodzajPolaUmowy::Data:
        return QStringLiteral("dtp") + kolumna;
    case RodzajPolaUmowy::Urzad:
        return QStringLiteral("cbo") + kolumna;
    default:
        return QStringLiteral("txt") + kolumna;
    }
}

QList<GrupaPol> GrupyUmowy(const RodzajUmowy& rodzaj, const QList<Pozycja>& urzedy) {
    const EkranUmow& ekran = EkranRodzaju(rodzaj);
    QList<GrupaPol> wynik;
    for (const RamkaEkranu& ramka : kRamki) {
        GrupaPol grupa{
            ramka.tytul.toString(), {}, ramka.kolumn, ekran.zakladki ? ramka.zakladka.toString() : QString()};
        for (const PoleEkranu& p : kPola) {
            const QLatin1String nazwa(p.kolumna.data(), static_cast<qsizetype>(p.kolumna.size()));
            const PoleUmowy* pole = p.ramka == ramka.ramka ? ZnajdzPoleUmowy(rodzaj, nazwa) : nullptr;
            if (!pole) continue;
            Pole nowe{NazwaPolaUmowy(*pole), p.podpis.toString(), rodzaj.kolumna(p.kolumna)};
            if (nazwa == QLatin1String("przedm")) nowe.podpis = ekran.podpisPrzedmiotu.toString();
            nowe.rodzaj = rodzajPola(*pole, nowe.kolumna);
            if (nowe.rodzaj == Rodzaj::Wybor) nowe.pozycje = urzedy;
            nowe.grosze = Grosze::Round;
            nowe.opis = p.opis.toString();
            grupa.pola.append(nowe);
        }
        if (!grupa.pola.isEmpty()) wynik.append(grupa);
    }
    return wynik;
}

} // namespace tornel::contracts
