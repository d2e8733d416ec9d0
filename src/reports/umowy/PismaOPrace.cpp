#include "reports/umowy/PismaOPrace.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "personnel/Wypowiedzenie.h"
#include "reports/umowy/CzesciPism.h"

namespace tornel::reports {

namespace {

void pracownikUmowy(PismoDoPodpisu& p, const StronyUmowy& s) {
    p.srodtytul(s.imieNazwisko());
    const auto znane = [&p](QStringView podpis, const QString& wartosc) {
        if (!wartosc.isEmpty()) p.para(podpis, wartosc);
    };
    znane(u"Imiona rodziców:", s.osoba.rodzice);
    znane(u"Data urodzenia:", FormatDaty(s.osoba.dataUrodzenia));
    znane(s.osoba.kobieta ? u"Zamieszkała:" : u"Zamieszkały:", s.osoba.adres);
    znane(u"PESEL:", s.osoba.pesel);
    znane(u"Dowód osobisty:", s.osoba.dowod);
}

QString okresUmowy(const UmowaOPrace& u) {
    QString wynik = NazwaRodzajuUmowy(u.rodzaj);
    if (u.warunki.dokad.isValid())
        wynik += QStringLiteral(", od %1 do %2").arg(FormatDaty(u.warunki.od), FormatDaty(u.warunki.dokad));
    return wynik;
}

QString wynagrodzenieUmowy(const WarunkiPracy& w) {
    QStringList skladniki;
    if (w.placa > Waluta{})
        skladniki += QStringLiteral("wynagrodzenie zasadnicze miesięcznie ") + KwotaZeSlowami(w.placa);
    else if (w.stawka > Waluta{})
        skladniki += QStringLiteral("stawka za godzinę ") + KwotaZeSlowami(w.stawka);
    if (w.premia > Waluta{})
        skladniki += QStringLiteral("premia %1% wynagrodzenia zasadniczego").arg(FormatKwoty(w.premia));
    return skladniki.isEmpty() ? MiejsceNaWpis(50) : skladniki.join(QLatin1Char('\n'));
}

void warunkiUmowy(PismoDoPodpisu& p, const StronyUmowy& s) {
    const WarunkiPracy& w = s.umowa.warunki;
    const auto punkt = [&p](QStringView podpis, const QString& wartosc) {
        p.para(podpis, wartosc.isEmpty() ? MiejsceNaWpis(50) : wartosc);
    };
    punkt(u"1. Rodzaj umowy:", okresUmowy(s.umowa));
    punkt(u"2. Rodzaj pracy:", w.stanowisko);
    if (!w.dzial.isEmpty()) punkt(u"Dział:", w.dzial);
    punkt(u"3. Miejsce wykonywania pracy:", s.miejscePracy());
    punkt(u"4. Wymiar czasu pracy:", NapisEtatu(w.etat, w.etat2));
    punkt(u"5. Wynagrodzenie:", wynagrodzenieUmowy(w));
    punkt(u"6. Termin rozpoczęcia pracy:", FormatDaty(w.od));
    if (!s.umowa.inneWarunki.isEmpty()) punkt(u"7. Inne warunki:", s.umowa.inneWarunki);
    if (s.umowa.wypowiadalna)
        p.akapit(
            QStringLiteral("Każda ze stron może rozwiązać umowę przed upływem czasu, na który ją zawarto, "
                           "za dwutygodniowym wypowiedzeniem (art. 33 Kodeksu pracy)."));
}

/// What stood before, and what is new.
void noweWarunki(PismoDoPodpisu& p, const StronyUmowy& s) {
    for (const RoznicaWarunku& r : s.umowy.roznicaOdPoprzednich(s.wybrana)) {
        const QString nazwa = r.nazwa[0].toUpper() + r.nazwa.mid(1);
        p.para(QString(nazwa + QStringLiteral(", dotychczas:")), r.dotad);
        p.para(QString(nazwa + QStringLiteral(", po zmianie:")), r.teraz);
    }
    if (!s.wybrana.inneWarunki.isEmpty() && s.wybrana.inneWarunki != s.umowa.inneWarunki)
        p.para(u"Inne warunki, po zmianie:", s.wybrana.inneWarunki);
}

void pouczenieOOdwolaniu(PismoDoPodpisu& p, const StronyUmowy& s) {
    p.srodtytul(QStringLiteral("Pouczenie"));
    p.akapit(
        QStringLiteral("W ciągu 7 dni od otrzymania tego pisma (art. 264 § 1 Kodeksu pracy) może %1 wnieść "
                       "odwołanie do sądu rejonowego - sądu pracy w ........................................")
            .arg(s.forma(u"Pan", u"Pani")));
}

void przyczynaWypowiedzenia(PismoDoPodpisu& p, const UmowaOPrace& umowa, const QString& przyczyna) {
    // Only the notice of an unlimited contract has to give a reason; for the others one may be given.
    if (przyczyna.isEmpty() && !umowa.jestRodzaju(RodzajUmowyOPrace::CzasNieokreslony)) return;
    p.srodtytul(QStringLiteral("Przyczyna wypowiedzenia"));
    p.akapit(przyczyna.isEmpty() ? MiejsceNaWpis(180) : przyczyna);
}

void podpisPracodawcy(PismoDoPodpisu& p) {
    p.odstep();
    p.podpisy({}, u"podpis pracodawcy lub osoby go reprezentującej");
}

/// The paper was asked for: the contract can be ended by notice.
OkresWypowiedzenia okresPisma(const StronyUmowy& s, QDate wypowiedziana) {
    return OkresDlaUmowy(s.umowa, s.umowy.zatrudnionyOd(s.umowa), wypowiedziana).value();
}

std::shared_ptr<const Uklad> porozumienieStron(const StronyUmowy& s) {
    PismoDoPodpisu p(QStringLiteral("dtrUMOPZmiana"), QStringLiteral("Zmiana warunków umowy o pracę"));
    s.pracodawca(p);
    s.miejsceIData(p, s.wybrana.zawarta);
    p.odstep();
    p.tytul(QStringLiteral("POROZUMIENIE"));
    p.tytul(QStringLiteral("o zmianie warunków umowy o pracę"));
    if (!s.wybrana.numer.isEmpty()) p.tytul(QStringLiteral("nr ") + s.wybrana.numer);
    p.odstep();
    p.akapit(QStringLiteral("Pracodawca: %1, i pracownik: %2%3, zmieniają %4. Od dnia %5 obowiązują warunki:")
                 .arg(FirmaNaWydruku(s.o.stale).wLinii(), s.imieNazwisko(),
                      s.osoba.pesel.isEmpty() ? QString() : QStringLiteral(", PESEL ") + s.osoba.pesel,
                      s.opisUmowy(), FormatDaty(s.wybrana.warunki.od)));
    p.odstep();
    noweWarunki(p, s);
    p.odstep();
    p.akapit(QStringLiteral("Pozostałe warunki umowy się nie zmieniają."));
    p.akapit(
        QStringLiteral("Porozumienie sporządzono w dwóch jednakowych egzemplarzach, po jednym dla stron."));
    p.odstep();
    p.podpisy(u"data i podpis pracownika", u"podpis pracodawcy lub osoby go reprezentującej");
    return p.uloz();
}

std::shared_ptr<const Uklad> wypowiedzenieWarunkow(const StronyUmowy& s) {
    const OkresWypowiedzenia okres = okresPisma(s, s.wybrana.wypowiedziana);
    const QDate koniec = okres.koniec(s.wybrana.wypowiedziana);
    PismoDoPodpisu p(QStringLiteral("dtrUMOPZmiana"), QStringLiteral("Zmiana warunków umowy o pracę"));
    s.pracodawca(p);
    s.miejsceIData(p, s.wybrana.wypowiedziana);
    s.adresat(p);
    p.tytul(QStringLiteral("WYPOWIEDZENIE WARUNKÓW UMOWY O PRACĘ"));
    p.odstep();
    p.akapit(QStringLiteral("Wypowiadam %1 warunki, na których zawarto %2. Okres wypowiedzenia wynosi %3 i "
                            "kończy się %4. Po jego upływie, od dnia %5, proponuję warunki:")
                 .arg(s.forma(u"Panu", u"Pani"), s.opisUmowy(), okres.napis(), FormatDaty(koniec),
                      FormatDaty(s.wybrana.warunki.od)));
    p.odstep();
    noweWarunki(p, s);
    przyczynaWypowiedzenia(p, s.umowa, s.wybrana.przyczyna);
    p.odstep();
    p.akapit(QStringLiteral("Jeżeli przed upływem połowy okresu wypowiedzenia nie odmówi %1 ich przyjęcia na "
                            "piśmie, uważa się, że %1 na nie %2. W razie odmowy umowa rozwiąże się z upływem "
                            "okresu wypowiedzenia (art. 42 Kodeksu pracy).")
                 .arg(s.forma(u"Pan", u"Pani"), s.forma(u"się zgodził", u"się zgodziła")));
    pouczenieOOdwolaniu(p, s);
    podpisPracodawcy(p);
    p.akapit(s.forma(u"Otrzymałem:", u"Otrzymałam:"));
    p.podpisy(u"data i podpis pracownika", {});
    return p.uloz();
}

std::shared_ptr<const Uklad> wypowiedzenieFirmy(const StronyUmowy& s, const OkresWypowiedzenia& okres) {
    PismoDoPodpisu p(QStringLiteral("dtrUMOPWypow"), QStringLiteral("Wypowiedzenie umowy o pracę"));
    s.pracodawca(p);
    s.miejsceIData(p, s.umowa.wypowiedziana);
    s.adresat(p);
    p.tytul(QStringLiteral("ROZWIĄZANIE UMOWY O PRACĘ ZA WYPOWIEDZENIEM"));
    p.odstep();
    p.akapit(
        QStringLiteral("Rozwiązuję z %1 %2, za wypowiedzeniem. Okres wypowiedzenia wynosi %3 i kończy się "
                       "%4.")
            .arg(s.forma(u"Panem", u"Panią"), s.opisUmowy(), okres.napis(),
                 FormatDaty(okres.koniec(s.umowa.wypowiedziana))));
    if (s.umowa.rozwiazana.isValid() && s.umowa.rozwiazana != okres.koniec(s.umowa.wypowiedziana))
        p.akapit(QStringLiteral("Stosunek pracy ustanie %1.").arg(FormatDaty(s.umowa.rozwiazana)));
    przyczynaWypowiedzenia(p, s.umowa, s.umowa.przyczyna);
    if (const int dni = okres.dniNaSzukaniePracy(); dni > 0)
        p.akapit(
            QStringLiteral("W okresie wypowiedzenia %1 na poszukiwanie pracy %2 dni robocze, z prawem do "
                           "wynagrodzenia (art. 37 Kodeksu pracy).")
                .arg(s.forma(u"ma Pan", u"ma Pani"))
                .arg(dni));
    pouczenieOOdwolaniu(p, s);
    podpisPracodawcy(p);
    p.akapit(s.forma(u"Otrzymałem:", u"Otrzymałam:"));
    p.podpisy(u"data i podpis pracownika", {});
    return p.uloz();
}

std::shared_ptr<const Uklad> wypowiedzeniePracownika(const StronyUmowy& s, const OkresWypowiedzenia& okres) {
    PismoDoPodpisu p(QStringLiteral("dtrUMOPWypow"), QStringLiteral("Wypowiedzenie umowy o pracę"));
    p.srodtytul(s.imieNazwisko());
    if (!s.osoba.adres.isEmpty()) p.akapit(s.osoba.adres);
    s.miejsceIData(p, s.umowa.wypowiedziana);
    p.odstep();
    const Firma firma = FirmaNaWydruku(s.o.stale);
    p.doPrawej(firma.nazwa);
    p.doPrawej(firma.adres);
    p.odstep();
    p.tytul(QStringLiteral("WYPOWIEDZENIE UMOWY O PRACĘ"));
    p.odstep();
    p.akapit(QStringLiteral("Wypowiadam %1. Okres wypowiedzenia wynosi %2 i kończy się %3.")
                 .arg(s.opisUmowy(), okres.napis(), FormatDaty(okres.koniec(s.umowa.wypowiedziana))));
    if (!s.umowa.przyczyna.isEmpty()) p.akapit(s.umowa.przyczyna);
    p.odstep();
    p.podpisy({}, u"podpis pracownika");
    p.akapit(QStringLiteral("Pracodawca przyjmuje wypowiedzenie do wiadomości:"));
    p.podpisy(u"data i podpis pracodawcy", {});
    return p.uloz();
}

} // namespace

std::shared_ptr<const Uklad> UlozUmoweOPrace(Otoczenie& otoczenie, qint64 id) {
    const StronyUmowy s(otoczenie, id);
    PismoDoPodpisu p(QStringLiteral("dtrUMOP"), QStringLiteral("Umowa o pracę"));
    p.tytul(QStringLiteral("UMOWA O PRACĘ") +
            (s.umowa.numer.isEmpty() ? QString() : QStringLiteral(" nr ") + s.umowa.numer));
    p.tytul(NazwaRodzajuUmowy(s.umowa.rodzaj));
    p.odstep();
    p.para(u"zawarta w dniu", FormatDaty(s.umowa.zawarta));
    p.akapit(QStringLiteral("między pracodawcą:"));
    s.pracodawca(p);
    p.para(u"reprezentowanym przez:", MiejsceNaWpis(50));
    p.akapit(QStringLiteral("a pracownikiem:"));
    pracownikUmowy(p, s);
    p.odstep();
    warunkiUmowy(p, s);
    p.odstep();
    p.akapit(QStringLiteral("W sprawach, których umowa nie reguluje, stosuje się Kodeks pracy i przepisy "
                            "obowiązujące u pracodawcy. Umowę sporządzono w dwóch jednakowych egzemplarzach, "
                            "po jednym dla każdej ze stron."));
    p.odstep();
    p.podpisy(u"data i podpis pracownika", u"podpis pracodawcy lub osoby go reprezentującej");
    p.odstep();
    p.akapit(s.forma(u"Otrzymałem egzemplarz umowy. Przed rozpoczęciem pracy zapoznałem się z regulaminem "
                     u"pracy oraz z przepisami i zasadami bezpieczeństwa i higieny pracy.",
                     u"Otrzymałam egzemplarz umowy. Przed rozpoczęciem pracy zapoznałam się z regulaminem "
                     u"pracy oraz z przepisami i zasadami bezpieczeństwa i higieny pracy."));
    p.podpisy(u"data i podpis pracownika", {});
    return p.uloz();
}

std::shared_ptr<const Uklad> UlozZmianeWarunkow(Otoczenie& otoczenie, qint64 id) {
    const StronyUmowy s(otoczenie, id);
    s.wymagajPisma(PismoOPrace::Zmiana);
    return s.wybrana.wypowiedziana.isValid() ? wypowiedzenieWarunkow(s) : porozumienieStron(s);
}

std::shared_ptr<const Uklad> UlozWypowiedzenie(Otoczenie& otoczenie, qint64 id) {
    const StronyUmowy s(otoczenie, id);
    s.wymagajPisma(PismoOPrace::Wypowiedzenie);
    const bool firma = s.umowa.sposob == SposobRozwiazania::WypowiedzenieFirmy;
    const OkresWypowiedzenia okres = okresPisma(s, s.umowa.wypowiedziana);
    return firma ? wypowiedzenieFirmy(s, okres) : wypowiedzeniePracownika(s, okres);
}

} // namespace tornel::reports
