// The arithmetic of one payroll row, from the amounts of its components to the amount to pay.
#pragma once
#include "common/Rozmowa.h"
#include "common/Waluta.h"
#include "payroll/lista/Warsztat.h"
#include "payroll/nadgodziny/PrzenoszenieNadgodzin.h"
#include "payroll/nieobecnosci/LiczenieDni.h"
#include "payroll/nieobecnosci/WynagrodzenieL4.h"
#include "payroll/nieobecnosci/WynagrodzenieUrlop.h"
#include <memory>
#include <QDate>

namespace tornel::payroll {

class StareBrutto;

/// The sums of the row in work, in zł, made by `WyliczPodstawy`.
struct SumyWiersza {
    Waluta SumaBrutto;     ///< components flagged brutto, less the deductions flagged brutto
    Waluta SumaInne;       ///< components not flagged brutto, less the deductions not flagged brutto
    Waluta SumaBruttoUbr;  ///< the brutto sum with each component subject to ZUS multiplied by `wsk_ubr`
    Waluta PodstawaZUS;    ///< base of the social contributions
    Waluta PodstawaZUSUbr; ///< the same with each component multiplied by `wsk_ubr`
    Waluta PodstawaUbzdr;  ///< base of the health insurance
    Waluta RoznicaUbr;     ///< what the multiplication by `wsk_ubr` added to the ZUS base
};

/// The brutto of the year so far.
struct BruttoRoku {
    Waluta stare;     ///< `doch_start` and the earlier months' lists
    Waluta kwotaUmow; ///< contracts paid so far; they warn of a higher tax group and never cause one
};

/// Works on the current rows of `rsPLA`, `rsPLB`, `rsPLS`, `rsPLD` and of the personnel handles, which the
/// caller puts on one employee. All changes stay in memory: the caller saves the row as one action. Questions
/// and warnings go to the conversation port; in a batch (`Tryb::Seria`) warnings are left out and answers
/// remembered.
class Naliczanie {
public:
    /// `pozycje` and `odpowiedzi` belong to the open list and outlive this object, as does `wykazy`, the
    /// clerk's side of the absence calculations.
    Naliczanie(Otoczenie& otoczenie, const Pozycje& pozycje, OdpowiedziSerii& odpowiedzi,
               WykazyPodstaw* wykazy = nullptr);
    ~Naliczanie();

    /// Fills the active components and their periods from the personnel file. Reads `PRACPR`, `PRACSK`;
    /// changes `PLS`, `PLD`.
    void WypelnijSkladniki();
    /// Counts the days of the row by kind. Reads the absence registers and the calendars; changes `PLA`,
    /// `PLB`.
    void Przelicz_Dni(Tryb tryb) { dni_.Przelicz_Dni(tryb); }
    /// Refills the components, adds the overtime and prices sick leaves and vacations. Changes all four
    /// tables.
    void Przelicz2(Tryb tryb);
    /// Bases, contributions, tax and the amount to pay, with costs and tax credit taken anew from the
    /// employee. Reads `PRACPR`, `PLS`; changes `PLA`, `PLB`.
    void Przelicz1(Tryb tryb);

    /// Before a calculation of one row: what earlier ones read outside the open month is forgotten.
    void przygotujWiersz();
    /// Before a batch over `ile` employees: earlier months, registers and calendars, which do not change
    /// meanwhile, are read once for all if the batch takes a good part of the firm.
    void przygotujSerie(qsizetype ile);
    /// What the calculations since the last call left out and the report of a batch has to tell.
    [[nodiscard]] QStringList zabierzUwagi() { return std::exchange(w_.uwagi, {}); }

    /// One additive component i from 1 to 30, with its period, by the personnel file.
    void WypelnijDodatni(int i);
    /// The period of component i for its amount on the row: the month, from the contract's first day on; none
    /// without an amount.
    void WypelnijOkres(int i);
    /// One deductive component i from 1 to 15.
    void WypelnijUjemny(int i);

    // The steps of `Przelicz1`, run one by one after a hand edit.
    void WyliczPodstawy(Tryb tryb);
    void WyliczSkladki();
    void WyliczNetto();
    void WyliczUbzdr();
    void PrzyjmijUbzdrNalezne(); ///< `Ubzdr` := `ubzdr_nal`
    void WyliczKosztyUzyskania();
    void WyliczUlge();
    void WyliczPodatek(Tryb tryb);
    void Dowyplaty(Tryb tryb);

    /// Reads `PRACPR` and, through the file, the earlier months' `PLA`; `UZL`, `UOD`, `HON` only for one row,
    /// since contracts serve the warnings alone.
    [[nodiscard]] BruttoRoku OdczytajStareBrutto(Tryb tryb);
    /// The sick benefit of the row, zł: as `WyliczL4` left it, if that ran on this row last; otherwise the
    /// row's components named by constant 105 if `dni_l4_zus` is above 0.
    [[nodiscard]] Waluta ZasilekChorobowy() const;

    [[nodiscard]] const SumyWiersza& sumy() const { return sumy_; }

private:
    struct ZasilekWiersza {
        qint64 prcId = 0;
        QString lista;
        Waluta kwota;
    };

    void zapomnij(Odczyt odczyt);
    void dolicz(const PozycjaSkladnika& pozycja, Waluta kwota);
    [[nodiscard]] Waluta stawkaPodatku(Tryb tryb);
    void ostrzezOUmowach(Waluta brutto, int mnoznik);

    Otoczenie& o_;
    const Pozycje& pozycje_;
    OdpowiedziSerii& odpowiedzi_;
    Warsztat w_;
    LiczenieDni dni_{w_};
    PrzenoszenieNadgodzin nadgodziny_{w_};
    WynagrodzenieL4 l4_{w_};
    WynagrodzenieUrlop urlop_{w_};
    std::optional<ZasilekWiersza> zasilek_;
    std::unique_ptr<StareBrutto> stareBrutto_;
    SumyWiersza sumy_;
};

} // namespace tornel::payroll
