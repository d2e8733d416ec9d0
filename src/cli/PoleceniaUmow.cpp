#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "contracts/Umowy.h"
#include "reports/umowy/WydrukiUmow.h"
#include "store/Sesja.h"
#include <QDate>
#include <QJsonObject>

namespace tornel::cli {

namespace {

const RodzajUmowy& rodzaj(const Wywolanie& w) {
    const QString& nazwa = w.argumenty.pozycje.first();
    if (const RodzajUmowy* znany = ZnajdzRodzajUmowy(nazwa)) return *znany;
    throw ZleUzycie(QStringLiteral("Nieznany rodzaj umowy: %1. Są: UZL, UOD, HON.").arg(nazwa));
}

qint64 numerUmowy(const QString& tekst) {
    return liczbaZTekstu(tekst, 1, zakresTypu(Typ::Short).second, QStringLiteral("numer umowy"));
}

/// The contract named by the second argument, taken up.
void wybierz(const Wywolanie& w, Umowy& umowy) {
    const qint64 numer = numerUmowy(w.argumenty.pozycje[1]);
    if (!umowy.Wypisz(numer)) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(numer));
}

int nowa(Wywolanie& w) {
    const auto data = CzytajDate(w.argumenty.wartosc(QStringLiteral("data")));
    const QList<qint64> osoby = podaniPracownicy(w);
    if (!data || osoby.size() != 1)
        throw ZleUzycie(QStringLiteral("Podaje się --pracownik N i --data dd-mm-rrrr."));
    const qint64 numer = Umowy(w.otoczenie(), rodzaj(w)).Nowy(osoby.first(), *data);
    if (w.json())
        w.pisz(QJsonObject{{QStringLiteral("numer"), numer}});
    else
        w.pisz(QString::number(numer));
    return status::Wykonane;
}

int pole(Wywolanie& w) {
    const RodzajUmowy& umowa = rodzaj(w);
    QList<std::pair<const PoleUmowy*, QString>> pola;
    for (const QString& argument : w.argumenty.pozycje.mid(2)) {
        const QString nazwa = argument.section(QLatin1Char('='), 0, 0).trimmed();
        const PoleUmowy* znane = ZnajdzPoleUmowy(umowa, nazwa);
        if (!znane || !argument.contains(QLatin1Char('=')))
            throw ZleUzycie(QStringLiteral("Umowa nie ma pola: %1.").arg(nazwa));
        pola.append({znane, argument.section(QLatin1Char('='), 1)});
    }
    Umowy umowy(w.otoczenie(), umowa);
    wybierz(w, umowy);
    for (const auto& [pole, tekst] : pola)
        if (umowy.Opusc(*pole, tekst) == Umowy::Zrozumienie::Zadne)
            w.rozmowa.komunikat(
                QStringLiteral("Pole %1 nie rozumie tekstu „%2”.")
                    .arg(QLatin1String(pole->kolumna.data(), static_cast<qsizetype>(pole->kolumna.size())),
                         tekst),
                Styl::Wykrzyknik);
    umowy.Wpisz();
    return status::Wykonane;
}

int usun(Wywolanie& w) {
    Umowy umowy(w.otoczenie(), rodzaj(w));
    wybierz(w, umowy);
    return umowy.Usun() ? status::Wykonane : status::Odmowa;
}

int lista(Wywolanie& w) {
    const RodzajUmowy& umowa = rodzaj(w);
    QList<QStringList> wiersze{{QStringLiteral("NR"), QStringLiteral("DATA"), umowa.kolumnaOsoby.toString()}};
    for (const LiniaUmowy& l : Umowy(w.otoczenie(), umowa).Wczytaj())
        wiersze.append({QString::number(l.id), FormatDaty(l.zawarta), l.nazwisko});
    w.piszTabele(wiersze, {true, false, false});
    return status::Wykonane;
}

int wydrukUmowy(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const RodzajUmowy& umowa = rodzaj(w);
    Umowy umowy(w.otoczenie(), umowa);
    wybierz(w, umowy);
    const qint64 numer = liczbaZTekstu(w.argumenty.pozycje[1], 1, 32767, QStringLiteral("numer"));
    WypiszWydruk(w, *reports::UlozUmowe(w.otoczenie(), umowa, numer));
    return status::Wykonane;
}

int wydrukRachunku(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const RodzajUmowy& umowa = rodzaj(w);
    Umowy umowy(w.otoczenie(), umowa);
    wybierz(w, umowy);
    const qint64 numer = liczbaZTekstu(w.argumenty.pozycje[1], 1, 32767, QStringLiteral("numer"));
    WypiszWydruk(w, *reports::UlozRachunek(w.otoczenie(), umowa, numer, QDate::currentDate()));
    return status::Wykonane;
}

int wydrukZestawienia(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const RodzajUmowy& umowa = rodzaj(w);
    QList<qint64> klucze;
    for (const LiniaUmowy& l : Umowy(w.otoczenie(), umowa).Wczytaj()) klucze.append(l.id);
    WypiszWydruk(w, *reports::UlozZestawienieUmow(w.otoczenie(), umowa, QStringLiteral("Lista umów"), klucze,
                                                  QDate::currentDate()));
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaUmow() {
    return {
        {u"wydruk umowa", u"(UZL | UOD) NUMER (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"umowa do podpisania", 2, 2, opcjeWydruku({}), wydrukUmowy},
        {u"wydruk rachunek", u"(UZL | UOD | HON) NUMER (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"rachunek do umowy", 2, 2, opcjeWydruku({}), wydrukRachunku},
        {u"wydruk lista-umow", u"(UZL | UOD | HON) (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"wszystkie umowy z sumami", 1, 1, opcjeWydruku({}), wydrukZestawienia},
        {u"umowa nowa",
         u"(UZL | UOD | HON) --pracownik N --data D",
         u"zakłada umowę ze wskaźnikami z kartoteki, podaje jej numer",
         1,
         1,
         {{u"pracownik", u"N"}, {u"data", u"D"}},
         nowa},
        {u"umowa pole",
         u"(UZL | UOD | HON) NUMER POLE=TEKST ...",
         u"wpisuje pola umowy po kolei, z przeliczeniem jak na ekranie, i zapisuje ją",
         3,
         kDowolnieWiele,
         {},
         pole},
        {u"umowa usun", u"(UZL | UOD | HON) NUMER", u"usuwa umowę", 2, 2, {}, usun},
        {u"umowa lista", u"(UZL | UOD | HON)", u"wypisuje umowy według daty zawarcia", 1, 1, {}, lista},
    };
}

} // namespace tornel::cli
