#include "common/Daty.h"
#include "personnel/Swiadectwo.h"
#include "reports/umowy/CzesciPism.h"
#include "reports/umowy/PismaOPrace.h"

namespace tornel::reports {

namespace {

QString okresSlowami(const ZakresDat& zakres) {
    return zakres.od == zakres.dokad
               ? FormatDaty(zakres.od)
               : QStringLiteral("od %1 do %2").arg(FormatDaty(zakres.od), FormatDaty(zakres.dokad));
}

QString okresySlowami(const QList<ZakresDat>& okresy, const QString& brak) {
    QStringList wynik;
    for (const ZakresDat& z : okresy) wynik += okresSlowami(z);
    return wynik.isEmpty() ? brak : wynik.join(QStringLiteral(", "));
}

QString dniSlowami(qint64 dni) {
    return dni == 1 ? QStringLiteral("1 dzień") : QStringLiteral("%1 dni").arg(dni);
}

void zatrudnienieSwiadectwa(PismoDoPodpisu& p, const StronyUmowy& s, const DaneSwiadectwa& d) {
    const DaneOsoby& o = s.osoba;
    QString kto = s.forma(u"Pan ", u"Pani ") + s.imieNazwisko();
    if (!o.rodzice.isEmpty()) kto += QStringLiteral(", imiona rodziców: ") + o.rodzice;
    if (o.dataUrodzenia.isValid())
        kto += s.forma(u", urodzony ", u", urodzona ") + FormatDaty(o.dataUrodzenia) +
               (o.miejsceUrodzenia.isEmpty() ? QString()
                                             : QStringLiteral(" w miejscowości ") + o.miejsceUrodzenia);
    if (!o.adres.isEmpty()) kto += s.forma(u", zamieszkały: ", u", zamieszkała: ") + o.adres;
    QStringList etaty;
    for (const OkresNaStanowisku& st : d.stanowiska)
        if (!st.etat.isEmpty() && !etaty.contains(st.etat)) etaty += st.etat;
    p.akapit(QStringLiteral("1. Stwierdza się, że %1, %2 w: %3, w okresie %4, w wymiarze: %5.")
                 .arg(kto, s.forma(u"był zatrudniony", u"była zatrudniona"),
                      FirmaNaWydruku(s.o.stale).wLinii(), okresSlowami(d.zatrudnienie),
                      etaty.isEmpty() ? QString(20, u'.') : etaty.join(QStringLiteral(", "))));
    p.akapit(QStringLiteral("2. W okresie zatrudnienia %1 pracę na stanowisku:")
                 .arg(s.forma(u"wykonywał", u"wykonywała")));
    for (const OkresNaStanowisku& st : d.stanowiska)
        p.para(st.stanowisko.isEmpty() ? QString(30, u'.') : st.stanowisko, okresSlowami(st.zakres));
    const OpisSposobu& koniec = OpisRozwiazania(d.umowa.sposob);
    p.akapit(QStringLiteral("3. Stosunek pracy ustał w wyniku %1 (%2).").arg(koniec.zdanie, koniec.podstawa));
}

void uprawnieniaSwiadectwa(PismoDoPodpisu& p, const StronyUmowy& s, const DaneSwiadectwa& d) {
    const int rok = d.zatrudnienie.dokad.year();
    const QString nie = QStringLiteral("nie");
    p.akapit(QStringLiteral("4. W okresie zatrudnienia pracownik:"));
    p.para(u"1) wykorzystał w roku ustania stosunku pracy urlop wypoczynkowy:",
           QStringLiteral("%1 z %2 należnych w roku %3")
               .arg(dniSlowami(d.urlop), QString::number(d.urlopNalezny), QString::number(rok)));
    p.para(u"2) korzystał z urlopu bezpłatnego:", okresySlowami(d.bezplatne, nie));
    p.para(u"3) wykorzystał urlop wychowawczy:", okresySlowami(d.wychowawcze, nie));
    p.para(u"4) otrzymał wynagrodzenie za czas choroby (art. 92 Kodeksu pracy):",
           d.chorobowe == 0
               ? nie
               : QStringLiteral("za %1 w roku %2").arg(dniSlowami(d.chorobowe), QString::number(rok)));
    p.para(u"5) wykorzystał zwolnienie na opiekę nad dzieckiem (art. 188 Kodeksu pracy):",
           d.opieka == 0 ? nie
                         : QStringLiteral("%1 w roku %2").arg(dniSlowami(d.opieka), QString::number(rok)));
    p.para(u"6) odbył służbę wojskową:", MiejsceNaWpis(50));
    p.para(u"7) wykonywał pracę w szczególnych warunkach lub w szczególnym charakterze:", MiejsceNaWpis(50));
    p.para(u"8) wykorzystał dodatkowy urlop lub inne uprawnienie:", MiejsceNaWpis(50));
    p.para(u"9) okresy nieskładkowe, uwzględniane przy emeryturze i rencie:",
           okresySlowami(d.zwolnienia, QStringLiteral("brak")));
    const bool skrocone = s.umowa.sposob == SposobRozwiazania::WypowiedzenieFirmy;
    p.para(u"10) okres, za który należy się odszkodowanie za skrócone wypowiedzenie (art. 36¹ § 1):",
           skrocone ? MiejsceNaWpis(50) : QStringLiteral("nie dotyczy"));
}

} // namespace

std::shared_ptr<const Uklad> UlozSwiadectwoPracy(Otoczenie& otoczenie, qint64 id, QDate dzis) {
    const StronyUmowy s(otoczenie, id);
    const DaneSwiadectwa d = ZbierzSwiadectwo(otoczenie, id);
    PismoDoPodpisu p(QStringLiteral("dtrUMOPSwiad"), QStringLiteral("Świadectwo pracy"));
    s.pracodawca(p);
    s.miejsceIData(p, dzis);
    p.odstep();
    p.tytul(QStringLiteral("ŚWIADECTWO PRACY"));
    p.odstep();
    zatrudnienieSwiadectwa(p, s, d);
    uprawnieniaSwiadectwa(p, s, d);
    p.akapit(QStringLiteral("5. Zajęcie wynagrodzenia (komornik, numer sprawy, wysokość potrąconych kwot):"));
    for (int linia = 0; linia < 2; ++linia) p.akapit(MiejsceNaWpis(180));
    p.akapit(QStringLiteral("6. Informacje uzupełniające:"));
    for (int linia = 0; linia < 2; ++linia) p.akapit(MiejsceNaWpis(180));
    p.odstep();
    p.podpisy({}, u"podpis pracodawcy lub osoby go reprezentującej");
    p.akapit(
        QStringLiteral("Pouczenie: w ciągu 7 dni od otrzymania świadectwa pracy pracownik może wystąpić do "
                       "pracodawcy o jego sprostowanie, a w ciągu 7 dni od zawiadomienia o odmowie - do "
                       "sądu rejonowego, sądu pracy (art. 97 § 2¹ Kodeksu pracy)."));
    return p.uloz();
}

} // namespace tornel::reports
