#include "payroll/nadgodziny/PrzenoszenieNadgodzin.h"
#include "common/Daty.h"
#include "payroll/lista/Warsztat.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nadgodziny/KolumnyNadgodzin.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

PrzenoszenieNadgodzin::PrzenoszenieNadgodzin(Warsztat& warsztat) : w_(warsztat) {}
PrzenoszenieNadgodzin::~PrzenoszenieNadgodzin() = default;

void PrzenoszenieNadgodzin::zapomnij() {
    sprawdzone_ = false;
    lista_.reset();
}

std::optional<PrzenoszenieNadgodzin::Kwoty> PrzenoszenieNadgodzin::kwoty(qint64 prcId) {
    Sesja& s = w_.o.sesja;
    if (!sprawdzone_) {
        Instrukcja naglowek(s.cnPlace, "SELECT EXISTS(SELECT 1 FROM NADG WHERE ROK = ?1 AND MIES = ?2)");
        naglowek.wiaz(0, FormatRoku(s.rok())).wiaz(1, FormatMiesiaca(s.mies()));
        if (naglowek.wiersz() && naglowek.liczba(0) != 0) {
            const QString tabela = Sesja::nazwaMiesiaca("NADGN", s.rok(), s.mies());
            WymagajTabeli(s, tabela);
            QByteArrayList kolumny;
            for (int g = 1; g <= kGrupNadgodzin; ++g) {
                const std::string_view nazwa = KwotaOsoby(g).def().nazwa;
                kolumny.append(QByteArray(nazwa.data(), static_cast<qsizetype>(nazwa.size())));
            }
            lista_ = std::make_unique<Instrukcja>(s.cnPlace,
                                                  ("SELECT " + kolumny.join(", ") + " FROM " +
                                                   nazwaSql(tabela.toStdString()) + " WHERE PRC_ID = ?1")
                                                      .toStdString());
        }
        sprawdzone_ = true;
    }
    if (!lista_) return std::nullopt;
    lista_->wiaz(0, prcId);
    Kwoty wynik;
    const bool jest = lista_->wiersz();
    for (std::size_t g = 0; jest && g < wynik.size(); ++g)
        wynik[g] = Waluta::zSurowej(lista_->liczba(static_cast<int>(g)));
    lista_->od_nowa();
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
