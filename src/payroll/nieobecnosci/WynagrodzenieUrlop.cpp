#include "payroll/nieobecnosci/WynagrodzenieUrlop.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;

namespace {

constexpr int kBezplatny = 1; // kind that earns nothing
constexpr int kMiesiecyUrlopu = 9;

/// What became of a period that has no component.
QString niezapisany(const OkresUrlopu& okres) {
    return QStringLiteral("Wynagrodzenie za okres od ") + FormatDaty(okres.od) + QStringLiteral(" do ") +
           FormatDaty(okres.dokad) + QStringLiteral(" nie zostało zapisane.");
}

} // namespace

SredniaUrlopu WynagrodzenieUrlop::SredniaDoUrlopu(qint64 prcId, int ile) {
    SredniaUrlopu wynik;
    ile = std::min(ile, kMiesiecyUrlopu);
    if (ile <= 0) return wynik;
    Waluta suma;
    for (const PodstawaUrlopu& m : w_.podstawy().doUrlopu(prcId, ile)) {
        wynik.miesiace.append({m.miesiac, m.skladniki, {}});
        wynik.dni += m.dniPracy;
        suma += m.skladniki;
    }
    if (wynik.dni != 0) wynik.StawkaDzienna = Proporcja(suma, 1, wynik.dni, 2);
    return wynik;
}

Waluta WynagrodzenieUrlop::stawka(qint64 prcId, Tryb tryb) {
    const SredniaUrlopu srednia = SredniaDoUrlopu(prcId, w_.o.stale.ZIluMSrDn);
    if (tryb == Tryb::Seria || !w_.wykazy) return srednia.StawkaDzienna;
    return w_.wykazy->dniowka(srednia.miesiace, srednia.dni, srednia.StawkaDzienna).value_or(Waluta{});
}

std::optional<int> WynagrodzenieUrlop::WyliczIleDniUrl(qint64 prcId, QDate od, QDate dokad,
                                                       Liczenie liczenie) {
    if (liczenie == Liczenie::Kalendarz) {
        const auto kalendarz = w_.dane.kalendarzLubOgolny(prcId, od.year(), od.month());
        if (!kalendarz) return std::nullopt;
        return kalendarz->ile(DniKalendarza::Roboczy, od.day(), dokad.day());
    }
    int dni = 0;
    for (QDate d = od; d <= dokad; d = d.addDays(1))
        dni += d.dayOfWeek() < Qt::Saturday || (d.dayOfWeek() == Qt::Saturday && w_.o.stale.WliczSobDoUrl);
    return dni;
}

QList<OkresUrlopu> WynagrodzenieUrlop::okresy(qint64 prcId, Nieobecnosci urlopy, Waluta stawka,
                                              Liczenie liczenie, Tryb tryb) {
    const int rok = w_.o.sesja.rok(), mies = w_.o.sesja.mies();
    QList<OkresUrlopu> wynik;
    for (const Nieobecnosc& u : urlopy) {
        if (u.Rodzaj == kBezplatny) continue;
        // Deliberate: only the numbers of the months are compared, not the years.
        OkresUrlopu okres{u.Data.month() < mies ? PierwszyDzien(rok, mies) : u.Data,
                          u.data_do.month() > mies ? OstatniDzien(rok, mies) : u.data_do, u.Kwota};
        if (okres.kwota.zero()) {
            const std::optional<int> dni = WyliczIleDniUrl(prcId, okres.od, okres.dokad, liczenie);
            if (!dni)
                w_.uwaga(tryb,
                         QStringLiteral("W kalendarzu nie ma miesiąca %1.%2, urlop od %3 do %4 ma 0 dni.")
                             .arg(FormatMiesiaca(okres.od.month()), FormatRoku(okres.od.year()),
                                  FormatDaty(okres.od), FormatDaty(okres.dokad)));
            okres.kwota = Proporcja(stawka, dni.value_or(0), 1);
        }
        wynik.append(okres);
    }
    return wynik;
}

void WynagrodzenieUrlop::wpiszRazem(const QList<OkresUrlopu>& okresy, Tryb tryb) {
    const int nr = w_.o.stale.SklUrl;
    // Deliberate: number 30 is left out as well, without a word.
    if (nr <= 0 || nr >= 30) return;
    if (!w_.aktywny(nr)) {
        w_.uwaga(tryb, QStringLiteral("Składnik nr ") + QString::number(nr) +
                           QStringLiteral(
                               " odpowiadający wynagrodzeniu za urlop jest nieaktywny. Kwota za urlop nie "
                               "została zaopisana."));
        return;
    }
    Waluta suma;
    for (const OkresUrlopu& okres : okresy) suma += okres.kwota;
    w_.wpisz(nr, suma, okresy.first().od, okresy.last().dokad);
}

void WynagrodzenieUrlop::wpiszKolejno(const QList<OkresUrlopu>& okresy) {
    const auto& numery = w_.o.stale.SklUrlz;
    for (qsizetype p = 0; p < okresy.size(); ++p) {
        const int nr = static_cast<std::size_t>(p) < numery.size() ? numery[static_cast<std::size_t>(p)] : 0;
        if (w_.aktywny(nr))
            w_.wpisz(nr, okresy[p].kwota, okresy[p].od, okresy[p].dokad);
        else
            w_.uwaga(Tryb::Seria, niezapisany(okresy[p]));
    }
}

std::optional<int> WynagrodzenieUrlop::wybranySkladnik(const OkresUrlopu& okres, int proponowany) {
    if (!w_.wykazy) return w_.aktywny(proponowany) ? std::optional(proponowany) : std::nullopt;
    for (;;) {
        const std::optional<int> nr = w_.wykazy->numerSkladnika(okres, proponowany);
        if (!nr || *nr < 1 || *nr > 30) return std::nullopt;
        if (w_.aktywny(*nr)) return nr;
        if (!w_.o.rozmowa.pytanie(QStringLiteral("Podany numer składnika jest nieaktywny. Ponowić próbę ?")))
            return std::nullopt;
    }
}

void WynagrodzenieUrlop::wpiszWedlugKlerka(const QList<OkresUrlopu>& okresy) {
    const auto& numery = w_.o.stale.SklUrlz;
    for (qsizetype p = 0; p < okresy.size(); ++p) {
        const OkresUrlopu& okres = okresy[p];
        if (const auto nr = wybranySkladnik(
                okres, static_cast<std::size_t>(p) < numery.size() ? numery[static_cast<std::size_t>(p)] : 0))
            w_.wpisz(*nr, okres.kwota, okres.od, okres.dokad);
        else
            w_.uwaga(Tryb::Pojedynczy, niezapisany(okres));
    }
}

void WynagrodzenieUrlop::przeliczSkladniki() {
    Sesja& s = w_.o.sesja;
    const qint64 dniPracy = w_.dniPrzepracowane();
    const qint64 dniRazem = dniPracy + s.rsPLA.liczba(PLA("DN_URL"));
    for (const int nr : w_.o.stale.SklPrzelURL) {
        if (!w_.aktywny(nr)) continue;
        if (dniRazem == 0)
            throw Blad(QStringLiteral(
                "Nie można przeliczyć składników po urlopie: dzielenie przez zero, wiersz nie ma "
                "dni pracy ani urlopu."));
        s.rsPLS.ustaw(schemat::SP(nr), Proporcja(s.rsPLS.kwota(schemat::SP(nr)), dniPracy, dniRazem));
    }
}

void WynagrodzenieUrlop::WyliczURL(Tryb tryb) {
    Otoczenie& o = w_.o;
    o.sesja.rsPLB.ustaw(PLB("SR_BR_URL"), Waluta{});
    const qint64 prcId = o.sesja.rsPLA.liczba(PLA("PRC_ID"));
    const Nieobecnosci urlopy = w_.dane.urlopy(prcId);
    const auto pytaj = [&](PytanieRaz& pytanie, const QString& seryjne, const QString& pojedyncze) {
        return pytanie.pytaj(o.rozmowa, tryb, seryjne, pojedyncze);
    };
    if (urlopy.empty() ||
        !pytaj(w_.odpowiedzi.liczycUrlop, QStringLiteral("Czy wyliczać urlop dla pracowników ?"),
               QStringLiteral("Czy wyliczyć urlop dla pracownika ?")))
        return;
    const Liczenie liczenie =
        o.stale.OsobHarPrac && pytaj(w_.odpowiedzi.urlopZKalendarza,
                                     QStringLiteral("Czy urlop wyliczać z dni wolnych pracownika ?"),
                                     QStringLiteral("Czy urlop wyliczyć z dni wolnych pracownika ?"))
            ? Liczenie::Kalendarz
            : Liczenie::DniTygodnia;
    const Waluta stawkaDzienna = stawka(prcId, tryb);
    const QList<OkresUrlopu> okresyMiesiaca = okresy(prcId, urlopy, stawkaDzienna, liczenie, tryb);
    if (okresyMiesiaca.size() == 1 ||
        (okresyMiesiaca.size() > 1 &&
         pytaj(w_.odpowiedzi.jedenSkladnik,
               QStringLiteral(
                   "Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty "
                   "wyliczonoe zapisywać w jednym składniku ?"),
               QStringLiteral(
                   "Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty "
                   "wyliczonoe zapisać w jednym składniku ?"))))
        wpiszRazem(okresyMiesiaca, tryb);
    else if (tryb == Tryb::Seria)
        wpiszKolejno(okresyMiesiaca);
    else
        wpiszWedlugKlerka(okresyMiesiaca);
    if (pytaj(w_.odpowiedzi.skladnikiPoUrlopie,
              QStringLiteral("Czy przeliczać składniki uwzględniając urlop pracowników ?"),
              QStringLiteral("Czy przeliczyć składniki uwzględniając urlop pracownika ?")))
        przeliczSkladniki();
    o.sesja.rsPLB.ustaw(PLB("SR_BR_URL"), stawkaDzienna);
}

} // namespace tornel::payroll
