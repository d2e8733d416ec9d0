#include "payroll/nadgodziny/PrzenoszenieNadgodzin.h"
#include "common/Daty.h"
#include "payroll/lista/Warsztat.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nadgodziny/KolumnyNadgodzin.h"
#include "rules/Stale.h"
#include "store/SchematPlac.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::NADG;
using schemat::NADGN;

PrzenoszenieNadgodzin::PrzenoszenieNadgodzin(Warsztat& warsztat) : w_(warsztat) {}
PrzenoszenieNadgodzin::~PrzenoszenieNadgodzin() = default;

void PrzenoszenieNadgodzin::zapomnij() {
    sprawdzone_ = false;
    lista_.reset();
}

std::optional<PrzenoszenieNadgodzin::Kwoty> PrzenoszenieNadgodzin::kwoty(qint64 prcId) {
    Sesja& s = w_.o.sesja;
    if (!sprawdzone_) {
        PrzygotowaneZapytanie naglowek(s.cnPlace, Zapytanie(NADG)
                                                      .gdzie(NADG("Rok") == FormatRoku(s.rok()) &&
                                                             NADG("Mies") == FormatMiesiaca(s.mies()))
                                                      .pierwszych(1));
        if (naglowek.uruchom().nastepny()) {
            const QString tabela = Sesja::nazwaMiesiaca(NADGN.nazwa, s.miesiac());
            WymagajTabeli(s, tabela);
            Zapytanie kwotyOsoby(NADGN);
            for (int g = 1; g <= kGrupNadgodzin; ++g) kwotyOsoby.kolumny(KwotaOsoby(g));
            lista_.emplace(s.cnPlace, kwotyOsoby.zTabel({tabela}).gdzie(NADGN("PRC_ID") == Parametr{0}));
        }
        sprawdzone_ = true;
    }
    if (!lista_) return std::nullopt;
    Kwoty wynik;
    auto wiersz = lista_->uruchom(prcId);
    const bool jest = wiersz.nastepny();
    for (int g = 1; jest && g <= kGrupNadgodzin; ++g)
        wynik[static_cast<std::size_t>(g - 1)] = wiersz.kwota(KwotaOsoby(g));
    return jest && wynik != Kwoty{} ? std::optional(wynik) : std::nullopt;
}

QList<int> PrzenoszenieNadgodzin::PrzeniesNadgodziny(Tryb tryb) {
    Otoczenie& o = w_.o;
    const std::optional<Kwoty> nadgodziny = kwoty(o.sesja.rsPLA.liczba(schemat::PLA("PRC_ID")));
    QList<int> zmienione;
    if (!nadgodziny || !w_.odpowiedzi.przenosicNadgodziny.pytaj(
                           o.rozmowa, tryb, QStringLiteral("Czy przenosić kwoty z nadgodzin na listę płac ?"),
                           QStringLiteral("Czy przenieść kwoty z nadgodzin na listę płac ?")))
        return zmienione;
    for (std::size_t g = 0; g < nadgodziny->size(); ++g) {
        const int nr = o.stale.NrNGS[g];
        const Waluta kwota = (*nadgodziny)[g];
        if (nr == 0 || kwota.zero()) continue;
        // A component out of use is refilled by nobody, so each run would add to it again.
        if (!w_.aktywny(nr)) {
            w_.uwaga(tryb,
                     QStringLiteral(
                         "Składnik nr %1 odpowiadający nadgodzinom jest nieaktywny. Kwota za nadgodziny "
                         "nie została zapisana.")
                         .arg(nr));
            continue;
        }
        o.sesja.rsPLS.ustaw(schemat::SP(nr), o.sesja.rsPLS.kwota(schemat::SP(nr)) + kwota);
        zmienione.append(nr);
    }
    return zmienione;
}

} // namespace tornel::payroll
