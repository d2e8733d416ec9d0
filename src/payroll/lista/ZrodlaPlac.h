// Where the calculations of one action over the open month take what they need from: registers, calendars,
// earlier months, overtime.
#pragma once
#include "payroll/lista/Naliczanie.h"
#include "payroll/lista/Skladniki.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/nieobecnosci/LiczenieDni.h"
#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "payroll/nieobecnosci/WykazyPodstaw.h"
#include "rules/Otoczenie.h"
#include <memory>

namespace tornel::payroll {

class StareBrutto;

/// Reads for the month that is open in the session. What was read stays known until `przygotuj`.
class ZrodlaPlac {
public:
    /// `wykazy`, if any, lets the clerk correct averages while one row is computed; it outlives this object.
    ZrodlaPlac(Otoczenie& otoczenie, WykazyPodstaw* wykazy);
    ~ZrodlaPlac();

    /// Before an action over `ile` rows: what earlier ones read is forgotten. For a good part of the firm the
    /// registers and earlier months, which do not change meanwhile, are read once for all.
    void przygotuj(qsizetype ile);

    // Which questions can arise; what is already in `moga` is not looked up again.

    void dodajPytaniaDni(const MiesiacPlac& miesiac, qint64 prcId, Zakres zakres, ZbiorPytan& moga);
    /// Those of `Przelicz2`; that about the benefit with them, where a row is computed to the end at once.
    void dodajPytaniaSkladnikow(const MiesiacPlac& miesiac, qint64 prcId, ZbiorPytan& moga);

    /// Nothing when the days are not wanted. Reads `URL`, `ZW`, `KALENDARZ`.
    [[nodiscard]] std::optional<DaneDni> dni(const MiesiacPlac& miesiac, qint64 prcId,
                                             const Odpowiedzi& odpowiedzi);
    /// Reads `NADG`, `NADGN`, `ZW`, `URL`, `KALENDARZ` and the earlier months. For one row the clerk may
    /// correct the averages and choose the components of vacation periods, so no transaction may be open.
    /// Throws `Blad` when the table of a month that stands on the list is missing, `Przepelnienie`.
    [[nodiscard]] DaneSkladnikow skladniki(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                           Zakres zakres, const Odpowiedzi& odpowiedzi);
    /// Reads the earlier months' `PLA`; `UZL`, `UOD`, `HON` only for one row, since contracts serve the
    /// warnings alone. Throws as `skladniki`.
    [[nodiscard]] BruttoRoku OdczytajStareBrutto(const DanePracownika& pracownik, Zakres zakres);

private:
    [[nodiscard]] PodstawySrednich& podstawy();
    [[nodiscard]] std::optional<DaneL4> l4(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                           WykazyPodstaw* wykazy, const Odpowiedzi& odpowiedzi);
    [[nodiscard]] std::optional<DaneUrlopu> urlop(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                                  WykazyPodstaw* wykazy, const Odpowiedzi& odpowiedzi);
    [[nodiscard]] QList<std::optional<int>> skladnikiOkresow(const MiesiacPlac& miesiac,
                                                             const DaneUrlopu& dane, WykazyPodstaw* wykazy);
    [[nodiscard]] std::optional<int> wybranySkladnik(const MiesiacPlac& miesiac, const OkresUrlopu& okres,
                                                     int proponowany, WykazyPodstaw* wykazy);

    Otoczenie& o_;
    WykazyPodstaw* wykazy_;
    Odczyt odczyt_ = Odczyt::PoJednym;
    DaneNieobecnosci nieobecnosci_;
    NadgodzinyMiesiaca nadgodziny_;
    std::unique_ptr<PodstawySrednich> podstawy_; // none until they are first needed
    std::unique_ptr<StareBrutto> stareBrutto_;
};

/// The calculations of one action: over one row or many, with the answers given before it.
struct AkcjaPlac {
    MiesiacPlac miesiac;
    ZrodlaPlac& zrodla;
    Odpowiedzi odpowiedzi;
    Zakres zakres;
};

/// A row on its way through them.
struct RachunekWiersza {
    WierszPlac wiersz;
    std::optional<Waluta> zasilek{}; ///< sick benefit, zł, if the row's leaves were priced here
    SumyWiersza sumy{};
    ListaUwag uwagi{};
};

// Each reads what it needs and takes the row one step on. Nothing of the row's handles is read or changed.

void LiczDni(const AkcjaPlac& akcja, RachunekWiersza& rachunek);
void LiczSkladniki(const AkcjaPlac& akcja, const DanePracownika& pracownik, RachunekWiersza& rachunek);
void LiczPlace(const AkcjaPlac& akcja, const DanePracownika& pracownik, Kroki kroki,
               RachunekWiersza& rachunek);

} // namespace tornel::payroll
