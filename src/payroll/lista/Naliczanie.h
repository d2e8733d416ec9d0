// The arithmetic of one payroll row, from the amounts of its components to the amount to pay: steps that take
// records and give results, in the order of what passes between them.
#pragma once
#include "payroll/lista/MiesiacPlac.h"
#include "payroll/lista/PytaniaListy.h"
#include "payroll/lista/WierszPlac.h"
#include <optional>

namespace tornel::payroll {

/// The sums of a row, in zł.
struct SumyWiersza {
    Waluta SumaBrutto;     ///< components flagged brutto, less the deductions flagged brutto
    Waluta SumaInne;       ///< components not flagged brutto, less the deductions not flagged brutto
    Waluta SumaBruttoUbr;  ///< the brutto sum with each component subject to ZUS multiplied by `wsk_ubr`
    Waluta PodstawaZUS;    ///< base of the social contributions
    Waluta PodstawaZUSUbr; ///< the same with each component multiplied by `wsk_ubr`
    Waluta PodstawaUbzdr;  ///< base of the health insurance
    Waluta RoznicaUbr;     ///< what the multiplication by `wsk_ubr` added to the ZUS base
};

struct Podstawy {
    SumyWiersza sumy;
    Waluta Brutto, Dodatki, Potracenia;
    Waluta zus_ppe; ///< average of the pension plan, raised to the contribution if that was wanted
};

/// Contributions, zł, and the employer's rates, percent.
struct Skladki {
    Waluta skl_fp, skl_fgsp, Feprd, Frprd, fwprd;
    Waluta Feprc, Frprc, FcPrc;
    Waluta WSK_FEPRD, WSK_FRPRD, WSK_FWPRD;

    /// What the employee pays into the pension, disability and sickness funds.
    [[nodiscard]] Waluta pracownika() const { return Feprc + Frprc + FcPrc; }
    /// Those that stand on the row.
    [[nodiscard]] static Skladki zWiersza(const WierszPlac& wiersz);
};

/// The brutto of the year before this row.
struct BruttoRoku {
    Waluta stare; ///< `doch_start` and the earlier months' lists
    /// Contracts paid so far; they warn of a higher tax group and never cause one. Not read for a batch.
    std::optional<Waluta> kwotaUmow;
};

struct StawkaPodatku {
    Stawka stawka; ///< exact
    ListaUwag uwagi;
};

struct ZaliczkaPodatku {
    Waluta pod_doch; ///< tax before deductions
    qint64 st_pd = 0;
    Waluta Podatek; ///< the advance
    Waluta Ubzdr;   ///< health insurance deducted, at most the tax
};

/// Bases and sums of the row's components. Throws `Przepelnienie`, as every step does.
[[nodiscard]] Podstawy WyliczPodstawy(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                      const Odpowiedzi& odpowiedzi);
/// Contributions from `PodstawaZUS`: the employer's rates come from the constants, the others from the row.
[[nodiscard]] Skladki WyliczSkladki(const MiesiacPlac& miesiac, const Podstawy& podstawy,
                                    const WierszPlac& wiersz);
/// `Kup` by the employee.
[[nodiscard]] Waluta WyliczKosztyUzyskania(const DanePracownika& pracownik);
/// The income that is taxed.
[[nodiscard]] Waluta WyliczNetto(Waluta Brutto, const Skladki& skladki, Waluta Kup);
/// `ubzdr_nal`: the health insurance due.
[[nodiscard]] Waluta WyliczUbzdr(const Podstawy& podstawy, const Skladki& skladki, Stawka wsk_ubzdr);
/// `Ppd`: the month's tax credit by the employee.
[[nodiscard]] Waluta WyliczUlge(const MiesiacPlac& miesiac, const DanePracownika& pracownik);

/// Whether the employee's tax group is fixed, so that the year's gross decides nothing.
[[nodiscard]] bool GrupaStala(const DanePracownika& pracownik);
/// The rate for the year's gross with this row; `rok` is asked for no fixed group.
[[nodiscard]] StawkaPodatku UstalStawke(const MiesiacPlac& miesiac, const DanePracownika& pracownik,
                                        const BruttoRoku& rok, Waluta Brutto);
/// `Ubzdr` is the health insurance to be deducted, before it is cut down to the tax.
[[nodiscard]] ZaliczkaPodatku WyliczPodatek(const MiesiacPlac& miesiac, Stawka stawka, Waluta Netto,
                                            Waluta Ppd, Waluta Ubzdr);
/// `zaliczka` is the advance before the health deduction, `zasilek` the sick benefit to be taken off.
[[nodiscard]] Waluta Dowyplaty(const MiesiacPlac& miesiac, const Podstawy& podstawy, const Skladki& skladki,
                               Waluta zaliczka, Waluta zasilek);

/// The sick benefit of a row, zł: `zapisany` if its leaves were priced here; otherwise (an imported row) the
/// components named by constant 105, each number once, if `dni_l4_zus` is above 0.
[[nodiscard]] Waluta ZasilekChorobowy(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                      std::optional<Waluta> zapisany);

/// The steps that a computation of the row goes through; what is left out stands as the row has it. Bases,
/// tax and the amount to pay are always computed.
struct Kroki {
    bool skladki = false;   ///< `WyliczSkladki`
    bool koszty = false;    ///< `WyliczKosztyUzyskania`
    bool netto = false;     ///< `WyliczNetto`
    bool ubzdr = false;     ///< `WyliczUbzdr`
    bool odliczane = false; ///< `Ubzdr` := `ubzdr_nal`
    bool ulga = false;      ///< `WyliczUlge`
};
/// `Przelicz1`: with costs and tax credit taken anew from the employee.
inline constexpr Kroki kPrzelicz1{true, true, true, true, true, true};

/// What a computation reads beside the month.
struct DanePlacy {
    const WierszPlac& wiersz;
    const DanePracownika& pracownik;
    BruttoRoku rok;
    Waluta zasilek; ///< the row's sick benefit, taken off if the clerk wants it
};

struct WynikPlacy {
    WierszPlac wiersz;
    SumyWiersza sumy;
    ListaUwag uwagi;
};

/// The questions that the computation of the row can raise.
[[nodiscard]] ZbiorPytan PytaniaPlacy(const WierszPlac& wiersz, Waluta zasilek);
/// The steps in their order, over one row.
[[nodiscard]] WynikPlacy PoliczPlace(const MiesiacPlac& miesiac, const DanePlacy& dane, Kroki kroki,
                                     const Odpowiedzi& odpowiedzi);
} // namespace tornel::payroll
