#include "reports/umowy/WydrukiUmow.h"
#include "common/Blad.h"
#include "druk/Tabela.h"
#include "reports/Firma.h"
#include "reports/umowy/DaneUmowy.h"
#include "reports/umowy/Pismo.h"
#include "rules/Stale.h"

namespace tornel::reports {

namespace {

/// The longest of the papers stays on one page.
constexpr double kLiniaRachunkuZlecenia = 4.2;

// The wording of these papers is fixed to the letter, also where it is odd: deliberate.

void pracodawca(PismoDoPodpisu& p, const DaneUmowy& d) {
    for (const QString& linia : d.pracodawca()) p.srodtytul(linia);
}

void zleceniobiorca(PismoDoPodpisu& p, const DaneUmowy& d, QStringView dowodem) {
    p.para(u"Imię ojca / matki:", d.rodzice());
    p.para(u"Adres:", d.ulica() + QLatin1Char('\n') + d.kodMiasto());
    p.para(dowodem, QStringLiteral("numer: ") + d.dowod());
    p.para(u"pesel:", d.osoba("pesel"));
}

void miejsceZamieszkania(PismoDoPodpisu& p, const DaneUmowy& d, QStringView gmina, QStringView mieszkanie) {
    p.srodtytul(QStringLiteral("Miejsce zamieszkania"));
    p.para(gmina, d.osoba("gm_dz"));
    p.para(u"Województwo", d.osoba("woj"));
    p.para(u"Ulica", d.osoba("ulica"));
    p.para(u"Nr domu", d.osoba("nr_domu"));
    p.para(mieszkanie, d.osoba("nr_miesz"));
    p.para(u"Kod pocztowy", d.osoba("Kod"));
    p.para(u"Miejscowość", d.osoba("miasto"));
}

std::shared_ptr<const Uklad> umowaZlecenia(const DaneUmowy& d) {
    PismoDoPodpisu p(QStringLiteral("dtrUZL"), QStringLiteral("Umowa zlecenie"));
    if (!d.jest()) return p.uloz();
    p.para(u"Zleceniodawca:", d.pracodawca().join(QLatin1Char('\n')));
    p.para(u"Zleceniobiorca:", d.imieNazwisko());
    zleceniobiorca(p, d, u"legitymujący się dowodem osobistym");
    p.odstep();
    p.tytul(QStringLiteral("Umowa - Zlecenie"));
    p.tytul(d.data("data_zaw"));
    p.akapit(QStringLiteral("zawierają umowę następującej treści:"));
    p.akapit(QStringLiteral("Zleceniodawca zleca zleceniobiorcy wykonanie następującej pracy:"));
    p.para({}, d.tekst("przedm"));
    p.para(u"w terminie od dnia:", d.data("data_od"));
    p.para(u"do dnia:", d.data("data_do"));
    p.akapit(QStringLiteral("Zlecenie wykonywane będzie [ ] nie będzie [ ] w siedzibie zleceniodawcy. "));
    p.akapit(QStringLiteral(
        "Z tytułu wykonania zleconej pracy Zleceniobiorca otrzyma wynagrodzenie w wysokości:"));
    p.para({}, zlote(d.kwota("Brutto")));
    p.para(u"słownie:", d.tekst("Slownie2"));
    p.akapit(QStringLiteral("Wypłata wynagrodzenia nastąpi po wystawieniu rachunku przez Zleceniobiorcę i "
                            "stwierdzenia przez Zleceniodawcę terminowego i prawidłowego wykonania zleconej "
                            "pracy, będącej przedmiotem niniejszej umowy."));
    p.akapit(
        QStringLiteral("W sprawach niunormowanych tą umowa mają zastosowanie przepisy Kodeksu Cywilnego"));
    p.akapit(QStringLiteral("Zleceniobiorca oświadcza, że wnosi [ ] nie wnosi [ ] o objęcie go dobrowolnym "
                            "ubezpieczeniem emerytalnym [ ], rentowym [ ], chorobowym [ ], zdrowotnym [ ] z "
                            "tytułu pracy na podstawie umowy - zlecenia."));
    p.akapit(QStringLiteral("Inne postanowienia umowy:"));
    p.odstep();
    p.odstep();
    p.akapit(QStringLiteral(
        "Umowa została sporządzona w dwóch jednobrzmiących egzemplarzach, po jednym dla każdej ze stron."));
    p.odstep();
    p.doPrawej(d.miastoDnia() + QStringLiteral(" ................................"));
    p.odstep();
    p.podpisy(u"Zleceniobiorca:", u"Zleceniodawca:");
    return p.uloz();
}

std::shared_ptr<const Uklad> umowaODzielo(const DaneUmowy& d) {
    PismoDoPodpisu p(QStringLiteral("dtrUOD"), QStringLiteral("Umowa o dzieło"));
    if (!d.jest()) return p.uloz();
    p.tytul(QStringLiteral("UMOWA O DZIEŁO nr ") + d.tekst("uod_nr"));
    p.odstep();
    p.para(u"Zawarta w dniu", d.data("data_zaw"));
    p.akapit(QStringLiteral("pomiędzy"));
    pracodawca(p, d);
    p.akapit(QStringLiteral("zwanym dalej ZAMAWIAJĄCYM, reprezentowanym przez"));
    for (const char* osoba : {"os1", "os2"})
        if (const QString kto = d.tekst(osoba); !kto.isEmpty()) p.para({}, kto);
    p.odstep();
    p.srodtytul(d.imieNazwisko());
    zleceniobiorca(p, d, u"legitymujący się dowodem osobistym:");
    p.akapit(QStringLiteral("zwanym dalej WYKONAWCĄ."));
    p.odstep();
    p.akapit(QStringLiteral("ZAMAWIAJĄCY zleca WYKONAWCY wykonanie następującej pracy:"));
    p.para({}, d.tekst("przedm"));
    p.para(u"Wykonanie dzieła nastąpi w okresie  od dnia", d.data("data_od"));
    p.para(u"do dnia", d.data("data_do"));
    p.akapit(
        QStringLiteral("Z tytułu wykonania zamówionego dzieła WYKONAWCA otrzyma wynagrodzenie w wysokości:"));
    p.para({}, zlote(d.kwota("Brutto")));
    p.para(u"słownie:", d.tekst("Slownie2"));
    p.akapit(QStringLiteral("Wypłata wynagrodzenia nastąpi po wystawieniu rachunku przez WYKONAWCĘ i "
                            "stwierdzeniu przez ZAMAWIAJĄCEGO terminowego i prawidłowego wykonaniia dzieła, "
                            "będącego przedmiotem niniejszej umowy."));
    p.akapit(QStringLiteral("Postanowienia dodatkowe:"));
    p.odstep();
    p.odstep();
    p.akapit(QStringLiteral(
        "W sprawach nie unormowanych tą umową mowie mają zastosowanie przepisy Kodeksu Cywilnego."));
    p.akapit(QStringLiteral(
        "Umowa została sporządzona w dwóch jednobrzmiących egzemplarzach, po jednym dla stron."));
    p.odstep();
    p.doPrawej(d.miastoDnia() + QStringLiteral(" ................................"));
    p.akapit(QStringLiteral("WYKONAWCA"));
    p.doPrawej(QStringLiteral("ZAMAWIAJĄCY"));
    p.podpisy(u"podpis", u"podpis");
    return p.uloz();
}

void skladkiZlecenia(PismoDoPodpisu& p, const DaneUmowy& d) {
    const auto zl = [&](std::string_view kolumna) { return zlote(d.kwota(kolumna)); };
    p.srodtytul(QStringLiteral("Składki przekazano do ZUS"));
    p.doPrawej(QStringLiteral("Pokryte ze środków"));
    p.wiersz(u"Tytuł składki", QStringLiteral("Zleceniobiorcy"), QStringLiteral("Zleceniodawcy"),
             QStringLiteral("RAZEM"));
    p.wiersz(u"ubezpieczenie emerytalne", zl("Feprc"), zl("Feprd"),
             zlote(d.kwota("Feprc") + d.kwota("Feprd")));
    p.wiersz(u"ubezpieczenie rentowe", zl("Frprc"), zl("Frprd"), zlote(d.kwota("Frprc") + d.kwota("Frprd")));
    p.wiersz(u"ubezpieczenie chorobowe", zl("FcPrc"), {}, {});
    p.wiersz(u"ubezpieczenie wypadkowe", {}, zl("fwprd"), {});
    p.wiersz(u"ubezpieczenie zdrowotne", zl("Ubzdr"), {}, {});
}

std::shared_ptr<const Uklad> rachunekZlecenia(const DaneUmowy& d) {
    PismoDoPodpisu p(QStringLiteral("dtrUZLRach"), QStringLiteral("Rachunek z umowy zlecenia"),
                     kLiniaRachunkuZlecenia);
    if (!d.jest() || !d.maUrzad()) return p.uloz();
    const Waluta podstawa = d.przychod() - d.kwota("koszt_uz");
    p.tytul(QStringLiteral("RACHUNEK DO UMOWY ZLECENIA"));
    p.para(u"Umowa zlecenie z dnia", d.data("data_zaw"));
    p.para(u"numer", d.tekst("uzl_nr"));
    p.para(u"Nazwisko", d.osoba("Naz"));
    p.para(u"Imię", d.osoba("Imie_1"));
    p.para(u"PESEL", d.osoba("pesel"));
    p.para(u"NIP", d.osoba("Nip"));
    miejsceZamieszkania(p, d, u"Gmina / Dzielnica", u"Nr mieszkania");
    p.para(u"Adres urzędu skarbowego", d.urzad("Nazwa") + QLatin1Char('\n') + d.adresUrzedu());
    p.kwota(u"Wynagro- dzenie brutto (przychód)", d.kwota("Brutto"));
    p.srodtytul(QStringLiteral("SKŁADKI UBEZPIECZEŃ SPOŁECZNYCH"));
    p.kwota(u"ubezp. emerytalne", d.kwota("Feprc"));
    p.kwota(u"ubezp. rentowe", d.kwota("Frprc"));
    p.kwota(u"ubezp. chorobowe", d.kwota("FcPrc"));
    p.kwota(u"Razem składki", d.skladki());
    p.kwota(u"Podstawa wymiaru   skł. ubezp. zdrowotn.", d.przychod());
    p.kwota(u"Koszty uzyskania przychodu", d.kwota("koszt_uz"));
    p.kwota(u"Podstawa naliczenia podatku dochodow.", podstawa);
    p.kwota(u"Należna zaliczka na podatek dochod.", d.kwota("Podatek"));
    p.srodtytul(QStringLiteral("ODLICZENIA OD DOCHODU"));
    p.kwota(u"SKŁADKA ubezpiecz. zdrowot- nego", d.kwota("Ubzdr"));
    p.kwota(u"Potrącona zaliczka na podatek dochod.", Procent(podstawa, Stawka(d.kwota("wskpod"))));
    p.kwota(u"Do wypłaty", d.kwota("Netto"));
    skladkiZlecenia(p, d);
    p.akapit(QStringLiteral("Stwierdzam, że praca umowna została wykonana w dniu: ........................"));
    p.akapit(QStringLiteral("Uwagi i zastrzeżenia"));
    p.podpisy({}, u"podpis zleceniodawcy");
    p.para(u"Zatwierdzam do wypłaty kwotę:", zlote(d.kwota("Netto")));
    p.para(u"słownie:", d.tekst("Slownie"));
    p.podpisy(u"data", {});
    p.akapit(QStringLiteral("Wymienioną kwotę wypłacono"));
    p.podpisy(u"data", u"podpis os. dok. wypłaty");
    p.akapit(QStringLiteral("Wymienioną kwotę otrzymałem"));
    p.podpisy(u"data", u"podpis zleceniobiorcy");
    return p.uloz();
}

std::shared_ptr<const Uklad> rachunekDziela(const DaneUmowy& d) {
    PismoDoPodpisu p(QStringLiteral("dtrUODRach"), QStringLiteral("Rachunek z umowy o dzieło"));
    if (!d.jest() || !d.maUrzad()) return p.uloz();
    p.doPrawej(d.miastoDnia() + QStringLiteral(" ................................"));
    p.tytul(QStringLiteral("RACHUNEK z dnia ") + d.data("data_wyp"));
    p.tytul(QStringLiteral("dla"));
    p.tytul(QStringLiteral("UMOWA O DZIEŁO nr ") + d.tekst("uod_nr"));
    p.para(u"za wykonanie pracy zgodnie z umową z dnia", d.data("data_zaw"));
    p.odstep();
    p.kwota(u"1. Kwota rachunku brutto", d.kwota("Brutto"));
    p.kwota(u"2. Składka emerytalna", d.kwota("Feprc"));
    p.kwota(u"3. Składka rentowa", d.kwota("Frprc"));
    p.kwota(u"4. Składka chorobowa", d.kwota("FcPrc"));
    p.kwota(u"5. Przychód", d.przychod());
    p.kwota(u"6. Koszty uzyskania przychodu", d.kwota("koszt_uz"));
    p.kwota(u"7. Podstawa opodatkowania", d.przychod() - d.kwota("koszt_uz"));
    p.kwota(u"8. Należny podatek", d.kwota("Podatek"));
    p.kwota(u"9. Składka na ubezp. zdrowotne", d.kwota("Ubzdr"));
    // The tax is net of the health insurance already; it comes off a second time here: deliberate.
    p.kwota(u"10. Podatek netto", d.kwota("Podatek") - d.kwota("Ubzdr"));
    p.kwota(u"11. Do wypłaty", d.kwota("Netto"));
    p.para(u"słownie:", d.tekst("Slownie"));
    p.odstep();
    p.para(u"Nazwisko", d.osoba("Naz"));
    p.para(u"Imiona", d.osoba("Imie_1") + QLatin1Char(' ') + d.osoba("imie_2"));
    p.para(u"Imię ojca", d.osoba("imie_oj"));
    p.para(u"Imię matki", d.osoba("imie_mat"));
    p.para(u"Miejsce urodzenia", d.osoba("miejsce_ur"));
    p.para(u"data", d.osobaData("data_ur"));
    p.para(u"Numer PESEL", d.osoba("pesel"));
    p.para(u"NIP", d.osoba("Nip"));
    miejsceZamieszkania(p, d, u"Gmina/Dzielnica", u"Nr miesz");
    p.para(u"Adres Urzędu Skarbowego", d.urzad("Nazwa") + QLatin1Char('\n') + d.adresUrzedu());
    p.odstep();
    p.akapit(QStringLiteral("Wystawił"));
    p.podpisy(u"WYKONAWCA", u"podpis");
    p.akapit(QStringLiteral("Wyżej wymienioną kwotę otrzymałem."));
    p.podpisy(u"Data", u"podpis");
    p.podpisy({}, u"ZAMAWIAJĄCY");
    return p.uloz();
}

std::shared_ptr<const Uklad> rachunekHonorarium(const DaneUmowy& d, QDate dzis) {
    PismoDoPodpisu p(QStringLiteral("dtrHONRach"), QStringLiteral("Rachunek honorarium"));
    if (!d.jest() || !d.maUrzad()) return p.uloz();
    pracodawca(p, d);
    p.para(u"Dla:", d.imieNazwisko());
    p.para(u"ul.:",
           d.ulica().replace(QStringLiteral(" / "), QStringLiteral("/")) + QLatin1Char('\n') + d.kodMiasto());
    p.doPrawej(d.miastoDnia() + QLatin1Char(' ') + dataPisma(dzis));
    p.odstep();
    p.akapit(QStringLiteral("Za wykonanie następującej pracy:"));
    p.para({}, d.tekst("przedm"));
    p.para(u"z dnia:", d.data("data_zaw"));
    p.para(u"na kwotę:", zlote(d.kwota("Brutto")));
    p.para(u"słownie:", d.tekst("Slownie2"));
    p.odstep();
    p.kwota(u"Kwota wynagrodzenia brutto:", d.kwota("Brutto"));
    p.kwota(u"Koszty uzyskania:", d.kwota("koszt_uz"));
    p.kwota(u"Podstawa opodatkowania:", d.kwota("Brutto") - d.kwota("koszt_uz"));
    p.kwota(u"Zaliczka na podatek dochodowy:", d.kwota("Podatek"));
    p.kwota(u"Kwota do wypłaty netto:", d.kwota("Netto"));
    p.para(u"słownie:", d.tekst("Slownie"));
    p.podpisy(u"Sporządził", u"Zatwierdzam");
    p.podpisy({}, u"Wykonawca");
    p.odstep();
    p.tytul(QStringLiteral("Pokwitowanie zapłaty"));
    p.para(u"Kwituję odbiór kwoty:", zlote(d.kwota("Netto")));
    p.para(u"słownie:", d.tekst("Slownie"));
    p.podpisy({}, u"Wykonawca");
    p.odstep();
    p.para(u"Należny podatek przekazano dnia:", QStringLiteral("........................"));
    p.para(u"do Urzędu Skarbowego:", d.urzad("Nazwa") + QLatin1Char('\n') + d.urzad("ulica") +
                                         QLatin1Char(' ') + d.urzad("nr_domu") + QLatin1Char('\n') +
                                         d.urzad("Kod") + QLatin1Char(' ') + d.urzad("miasto"));
    p.para(u"Bank:", d.urzad("bank"));
    p.para(u"Konto:", d.urzad("konto"));
    return p.uloz();
}

} // namespace

std::shared_ptr<const Uklad> UlozUmowe(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, qint64 id) {
    const DaneUmowy dane(otoczenie, rodzaj, id);
    if (rodzaj.tabela == &schemat::UZL) return umowaZlecenia(dane);
    if (rodzaj.tabela == &schemat::UOD) return umowaODzielo(dane);
    throw Blad(QStringLiteral("Honorarium nie ma wydruku umowy, tylko rachunek."));
}

std::shared_ptr<const Uklad> UlozRachunek(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, qint64 id,
                                          QDate dzis) {
    const DaneUmowy dane(otoczenie, rodzaj, id);
    if (rodzaj.tabela == &schemat::UZL) return rachunekZlecenia(dane);
    if (rodzaj.tabela == &schemat::UOD) return rachunekDziela(dane);
    return rachunekHonorarium(dane, dzis);
}

std::shared_ptr<const Uklad> UlozZestawienieUmow(Otoczenie& otoczenie, const RodzajUmowy& rodzaj,
                                                 const QString& tytul, const QList<qint64>& klucze,
                                                 QDate dzis) {
    OpisWydruku opis = NowyOpis(u"zestawienie-umow", tytul, true);
    const Firma firma = FirmaNaWydruku(otoczenie.stale);
    const QList<KolumnaDruku> kolumny{{QStringLiteral("Numer"), 34, 0},
                                      {QStringLiteral("Zawarta"), 24, 1, Format::Data},
                                      {QStringLiteral("Osoba"), 65, 2},
                                      {QStringLiteral("Brutto"), 30, 3, Format::Kwota, true},
                                      {QStringLiteral("Koszty uzyskania"), 30, 4, Format::Kwota, true},
                                      {QStringLiteral("Podatek"), 28, 5, Format::Kwota, true},
                                      {QStringLiteral("Netto"), 30, 6, Format::Kwota, true},
                                      {QStringLiteral("Wypłata"), 24, 7, Format::Data}};
    opis.nazwyPol = {QStringLiteral("NUMER"),  QStringLiteral("ZAWARTA"), QStringLiteral("OSOBA"),
                     QStringLiteral("BRUTTO"), QStringLiteral("KOSZTY"),  QStringLiteral("PODATEK"),
                     QStringLiteral("NETTO"),  QStringLiteral("WYPLATA")};
    opis.brakWierszy = QStringLiteral("Nie ma umów na liście.");
    opis.arkusze = {
        {naglowekWydruku(opis.strona, firma.nazwa, tytul, QStringLiteral("pozycji: %1").arg(klucze.size())),
         {.rola = Rola::NaglowekStrony, .wys = 8, .elementy = naglowkiKolumn(kolumny, 0)},
         {.rola = Rola::Wiersz, .wys = 5.5, .elementy = komorkiWiersza(kolumny, 5.5)},
         {.rola = Rola::StopkaWydruku,
          .wys = 7,
          .elementy = sumyKolumn(kolumny, QStringLiteral("Razem:"), 7)},
         StopkaZFirma(opis, firma, dzis)}};
    Recordset rs(*rodzaj.tabela);
    rs.Open(otoczenie.sesja.cnPlace);
    QList<QList<Wartosc>> wiersze;
    const auto k = [&](std::string_view nazwa) { return rodzaj.kolumna(nazwa); };
    for (const qint64 id : klucze) {
        const auto w = rs.szukaj(id);
        if (!w) continue;
        wiersze.append({w->tekst(rodzaj.numer), w->wartosc(k("data_zaw")),
                        QString(w->tekst(k("Naz")) + QLatin1Char(' ') + w->tekst(k("Imie"))),
                        w->wartosc(k("Brutto")), w->wartosc(k("koszt_uz")), w->wartosc(k("Podatek")),
                        w->wartosc(k("Netto")), w->wartosc(k("data_wyp"))});
    }
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeWPamieci>(std::move(wiersze)));
}

} // namespace tornel::reports
