// The records that a payroll row is computed from and the row itself, as plain values: amounts in zł, rates
// in percent, days as whole numbers. Members are named as their columns.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include <array>
#include <QDate>
#include <QString>

namespace tornel::payroll {

/// What names a row: the four tables' common key.
struct KluczListy {
    qint64 prcId = 0;
    QString lista;
    friend bool operator==(const KluczListy&, const KluczListy&) = default;
};

/// What the personnel file says of an employee, as far as the payroll asks: `PRACDP`, `PRACPR`, `PRACSK`,
/// `PRACZUS`.
struct DanePracownika {
    qint64 prc_id = 0;
    QString Naz, Imie_1, Lista;
    Waluta placa_zas, Premia_pr, Kup, doch_start;
    qint64 gr_pod = 0, us_id = 0, etat = 0, etat2 = 0;
    bool czy_kuz = false, czy_ulga = false, czy_2progi = false;
    QDate umowa_od;
    std::array<Waluta, 30> dodatnie;
    std::array<Waluta, 15> ujemne;
    Waluta Fp, gsp, PPE, wsk_fe, wsk_fr, wsk_fc, wsk_ubzdr;
    qint64 il_z_rodz = 0, il_z_piel = 0, il_z_wych = 0;
};

/// The components of a row with their periods: `PLS`, `PLD`.
struct SkladnikiWiersza {
    std::array<Waluta, 30> SP;
    std::array<Waluta, 15> SM;
    std::array<QDate, 30> SOD, SDO;

    /// Additive component `i`, from 1 to 30.
    [[nodiscard]] Waluta& sp(int i) { return SP.at(static_cast<std::size_t>(i - 1)); }
    [[nodiscard]] Waluta sp(int i) const { return SP.at(static_cast<std::size_t>(i - 1)); }
    void okres(int i, QDate od, QDate dokad) {
        SOD.at(static_cast<std::size_t>(i - 1)) = od;
        SDO.at(static_cast<std::size_t>(i - 1)) = dokad;
    }
    void wpisz(int i, Waluta kwota, QDate od, QDate dokad) {
        sp(i) = kwota;
        okres(i, od, dokad);
    }
};

/// The days of a row by kind: `PLA`, `PLB`.
struct DniWiersza {
    qint64 dn_pr = 0; ///< working days, Saturdays and Sundays together
    qint64 dn_ro = 0, dn_so = 0, dn_ni = 0, dn_inn = 0;
    qint64 dn_url = 0, dn_zas = 0;     ///< on vacation, sick
    std::array<qint64, 7> wgRodzaju{}; ///< days of vacation by its kind in the register

    [[nodiscard]] qint64 przepracowane() const { return dn_ro + dn_so + dn_ni; }
};

/// A row of the list: what its four records hold, as far as calculations and hand edits touch it.
struct WierszPlac {
    KluczListy klucz;
    QString Naz, Imie;
    qint64 us_id = 0, etat = 0, etat2 = 0;
    qint64 il_z_rodz = 0, il_z_piel = 0, il_z_wych = 0;
    DniWiersza dni;
    SkladnikiWiersza skladniki;

    Waluta Brutto, Netto, Dodatki, Potracenia;
    Waluta Kup, Ppd, pod_doch, Podatek, do_wyplaty, przelewem;
    qint64 st_pd = 0;
    Waluta skl_fp, skl_fgsp, ST_SKL_FP, ST_SKLFGSP;
    Waluta sr_br_zus, sr_br_url; ///< averages for sick pay and for vacation pay
    qint64 dni_l4_zus = 0, dni_l4_pr = 0;

    Waluta zus_ppe, PPE;
    Waluta WSK_FEPRD, WSK_FRPRD, WSK_FWPRD;            ///< of the employer
    Waluta wsk_feprc, wsk_frprc, wsk_fcprc, wsk_ubzdr; ///< of the employee
    Waluta Feprd, Frprd, fwprd, Feprc, Frprc, FcPrc;
    Waluta Ubzdr, ubzdr_nal;
    Waluta wsk_ubr, UBruttow;
};

} // namespace tornel::payroll
