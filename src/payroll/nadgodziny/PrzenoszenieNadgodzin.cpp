#include "payroll/nadgodziny/PrzenoszenieNadgodzin.h"
#include "common/Daty.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/Stale.h"
#include "store/SchematPlac.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::NADG;
using schemat::NADGN;

NadgodzinyMiesiaca::NadgodzinyMiesiaca(Sesja& sesja) : sesja_(sesja) {}
NadgodzinyMiesiaca::~NadgodzinyMiesiaca() = default;

void NadgodzinyMiesiaca::zapomnij() {
    sprawdzone_ = false;
    lista_.reset();
}

std::optional<WgGrup<Waluta>> NadgodzinyMiesiaca::pracownika(qint64 prcId) {
    Sesja& s = sesja_;
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
    WgGrup<Waluta> wynik;
    auto wiersz = lista_->uruchom(prcId);
    const bool jest = wiersz.nastepny();
    for (int g = 1; jest && g <= kGrupNadgodzin; ++g)
        wynik[static_cast<std::size_t>(g - 1)] = wiersz.kwota(KwotaOsoby(g));
    return jest && wynik != WgGrup<Waluta>{} ? std::optional(wynik) : std::nullopt;
}

ZNadgodzinami PrzeniesNadgodziny(const MiesiacPlac& miesiac, const SkladnikiWiersza& skladniki,
                                 const WgGrup<Waluta>& kwoty) {
    ZNadgodzinami wynik{skladniki, {}, {}};
    for (std::size_t g = 0; g < kwoty.size(); ++g) {
        const int nr = miesiac.stale.NrNGS[g];
        if (nr == 0 || kwoty[g].zero()) continue;
        // A component out of use is refilled by nobody, so each run would add to it again.
        if (!miesiac.aktywny(nr)) {
            wynik.uwagi.append({QStringLiteral("Składnik nr %1 odpowiadający nadgodzinom jest nieaktywny. "
                                               "Kwota za nadgodziny nie została zapisana.")
                                    .arg(nr)});
            continue;
        }
        wynik.skladniki.sp(nr) += kwoty[g];
        wynik.zmienione.append(nr);
    }
    return wynik;
}

} // namespace tornel::payroll
