// The program constants in memory: one member for each, named as everybody who reads it names it.
#pragma once
#include "common/Waluta.h"
#include <array>
#include <QDate>
#include <QString>

namespace tornel::rules {

/// Filled by `WczytajKonfiguracje`. The defaults stand in the table of constants; here every member is empty.
/// Percentages are amounts (9,76); component numbers are 1 to 30 with 0 for none.
struct Stale {
    template <std::size_t N>
    using Numery = std::array<int, N>;
    template <std::size_t N>
    using Teksty = std::array<QString, N>;

    // Tax groups and contributions of the employer.
    Waluta GranicaG12, GranicaG23, PodatekG1, PodatekG2, PodatekG3, RKwPZ;
    int ZaokZal = 0, ZaokPod = 0, ZaokWyp = 0;
    Waluta FEprd, FRprd, FWprd, KwotaFEFR, WskUbruttow;
    bool BlokujUbruttow = false;

    // The system: base salary, bonus, piece work.
    int PlZas = 0, PremPr = 0, Nr13 = 0;
    Numery<3> NrAKS{};
    Teksty<3> AKNazwaS, RowAKRob, RowAKSob, RowAKNie;

    // Switches of the subsystems.
    Waluta StawkaPomPPE;
    bool AktRejPrzepDni = false, AktSystAk = false, AktOpWieluList = false, AktKontrOdpPPE = false;
    bool PytanieOPPE = false, PytanieOLiczSkl = false;
    int SposobPrzelSr = 0;
    QString WzorSposPrzelSr;
    bool AktywneUmowyZlecenia = false, AktywneUmowyODzielo = false, AktywneHonoraria = false;

    // Rates suggested for a new employee, denominations, documents.
    Waluta PFE, PFR, PFC, PFP, PFGSP, PUBZD;
    Teksty<10> NPZl, NPGr;
    QString MiastoDok;
    bool DrukPrzel = false, DrukPIT = false, DrukReszta = false;

    // Vacations.
    bool WliczSobDoUrl = false, OsobHarPrac = false;
    int ZIluMSrDn = 0, SklUrl = 0, StZasUrl = 0;
    QString WzorUrl;
    Numery<20> SkSumDoSrURL{}, SklPrzelURL{};
    Numery<4> SklUrlz{};

    // Sick leave.
    Waluta StProcL4;
    int MiesSrBr = 0, L4Pracod = 0, DniKomunikatL4 = 0;
    Numery<4> L4Prd{}, L4ZUS{};
    int SposobStZasL4 = 0;
    Numery<20> SklSrL4{};
    QString RownSrL4, WzorStZasL4;

    // Overtime.
    bool AktRejNadg = false, SzczegRejNadg = false;
    Numery<7> NrNGS{};
    Teksty<7> NGNazwaS;
    Teksty<3> RowNGRob, RowNGSob, RowNGNie;
    Teksty<7> RowNGGr;

    // The employer.
    QString NazwaUzCz1, NazwaUzCz2, NazwaSkrocona, KodiMiasto, Ulica, Telefon, NIP, Regon, EKD, Bank, Konto;
    int USUzytk = 0;
    QString USERNazwisko, USERImie1, USERImie2, USERObywatelstwo;
    QDate USERDataUr;
    QString USERMiejsceUr, USERSeriaDowodu, USERNumerDowodu, USERPesel;
    QString UASPKod, UASPMiejscowosc, UASPGmina, UASPUlica, UASPNrDomu, UASPNrMieszkania, UASPNrSkrytkiPoczt;
    QString UASPNrTelTelet, UASPNrTel, UASPNrFaksu, UASPEmail;
    QString UAZPKod, UAZPMiejscowosc, UAZPGmina, UAZPUlica, UAZPNrDomu, UAZPNrMieszkania, UAZPNrSkrytkiPoczt;
    QString UAZPNrTelTelet, UAZPNrTel, UAZPNrFaksu, UAZPEmail;
    QString UAPKKod, UAPKMiejscowosc, UAPKUlica, UAPKNrDomu, UAPKNrMieszkania, UAPKNrSkrytkiPoczt;
    QString UAPKNrTelTelet, UAPKNrTel, UAPKNrFaksu, UAPKEmail;

    // Social insurance.
    QString PozarolDzialKod, NazwaOrgZal;
    bool CzyJedBud = false, CzyPodlWpisDoRej = false;
    QDate PowstObowOplSkl, RozpWykDzial;
    bool CzyStatusZPCHR = false;
    QDate OtrzymZPCHR, UtrataZPCHR;
    QString NIPBiurRach, REGONBiurRach, NazSkrBiurRach;
    int Swiad_rech = 0, Zas_chor = 0, Zas_op = 0, Zas_mac = 0, Zas_por = 0, Zas_wyr = 0, Zas_pog = 0;
    int Zas_rodz = 0, Zas_piel = 0, Zas_wych = 0;
    Numery<5> FC_zas{}, FW_zas{}, BP_zas{};
    QString PathKDU;
    QString WydrukiZUS; ///< documents chosen for the next collection

    // Tax declarations.
    QString NazwaPelna, NazwaSkroc, NIPPlatnika;
    bool OsFizyczna = false;
    QString REGON_PESEL;
    QDate DataRozpDzial;
    QString NazOrgZal, NazwaRejestru;
    QDate DataRejestracji;
    QString NumerWRej;
    QString PITKraj, PITWoj, PITPowiat, PITGmina, PITMiejsc, PITUlica, PITNrDomu, PITNrLok, PITKodPocztowy;
    QString PITPoczta, PITSkrzynka, PITTelefon, PITTeleks, PITFaks, PITUs, PITImie, PITNazw;
    QDate PITOkresOd, PITOkresDo;
    Waluta PITKuz1, PITKuz2, PITKuz3;
    bool PITCzyPITr = false;
    Numery<10> GrpPIT40{};
    QString WzorPIT40G1, WzorPIT40G2, WzorPIT40G3;

    // MultiCash and archive.
    bool MCSAkt = false;
    QString MCSNazwa1, MCSNazwa2, MCSUlica, MCSKod, MCSPath;
    bool PytajArch = false;
    QString ArchPath;

    /// Symbols of the attendance card, one character each; an empty text stands for a blank.
    Teksty<10> Symbol;

    bool operator==(const Stale&) const = default;
};

} // namespace tornel::rules
