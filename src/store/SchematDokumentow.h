// Schema of contracts, tax and insurance declarations, address books, bank accounts and transfers.
#pragma once
#include "store/SeriaKolumn.h"

namespace tornel::store {

namespace schemat {

namespace kolumny {

using enum Typ;
using namespace rozmiary;

// The formatter would pack these lists into columns and tear the comments from theirs.
// clang-format off

/// The person of a contract or fee, copied from the personnel file, and its tax office.
inline constexpr auto OsobaUmowy = lista({
    {"prc_id", Short},
    {"Naz", Text, Nazwisko},
    {"Imie", Text, Imie},
    {"us_id", Short},
    {"us_nazwa", Text, 20}, // beginning of the office's number and name
    {"inf_opis", Memo},
});

/// Dates, amounts (zł) and rates (percent) of a contract.
inline constexpr auto RozliczenieUmowy = lista({
    {"data_zaw", Date}, // concluded on
    {"data_od", Date},
    {"data_do", Date},
    {"data_wyp", Date}, // paid on
    {"Brutto", Currency},
    {"Slownie2", Text, 200}, // gross in words
    {"koszt_uz", Currency},
    {"Podatek", Currency}, // advance after the health insurance
    {"Netto", Currency},
    {"Slownie", Text, 200}, // net in words
    {"przelewem", Currency},
    {"Feprd", Currency}, // contributions; prd the employer's, prc the contractor's
    {"Feprc", Currency},
    {"Frprd", Currency},
    {"Frprc", Currency},
    {"FcPrc", Currency},
    {"fwprd", Currency},
    {"Fp", Currency},
    {"Fgsp", Currency},
    {"Ubzdr", Currency},
    {"wskkuz", Currency}, // the rate of each amount
    {"wskpod", Currency},
    {"wskfeprd", Currency},
    {"wskfeprc", Currency},
    {"wskfrprd", Currency},
    {"wskfrprc", Currency},
    {"wskfcprc", Currency},
    {"wskfwprd", Currency},
    {"wskfp", Currency},
    {"wskfgsp", Currency},
    {"wskubzdr", Currency},
});

/// Commission contracts.
inline constexpr auto UZL = polacz(
    lista({
        {"UZLID", Short, 0, true},
        {"uzl_nr", Text, 20},
    }),
    OsobaUmowy,
    lista({{"przedm", Text, Tekst}}), // subject
    RozliczenieUmowy,
    lista({
        {"paczka", Short}, // bank file: package number, sent (T/N)
        {"wys_mcs", Text, 1},
    }));

/// Specific-work contracts.
inline constexpr auto UOD = polacz(
    lista({
        {"UODID", Short, 0, true},
        {"uod_nr", Text, 20},
    }),
    OsobaUmowy,
    lista({
        {"przedm", Text, Tekst},
        {"os1", Text, 50}, // persons who represent the ordering party
        {"os2", Text, 50},
        {"powierzono", Text, Tekst}, // what was entrusted
    }),
    RozliczenieUmowy);

/// Fees: no duration and no contributions. Amounts in zł, rates in percent.
inline constexpr auto HON = polacz(
    lista({
        {"honid", Short, 0, true},
        {"hon_nr", Text, 20},
    }),
    OsobaUmowy,
    lista({
        {"przedm", Text, Tekst},
        {"data_zaw", Date}, // concluded on
        {"data_wyp", Date}, // paid on
        {"Brutto", Currency},
        {"Slownie2", Text, 200}, // gross in words
        {"wskkuz", Currency},
        {"koszt_uz", Currency},
        {"wskpod", Currency},
        {"Podatek", Currency},
        {"Netto", Currency},
        {"Slownie", Text, 200}, // net in words
        {"przelewem", Currency},
    }));

/// Payer's address in a declaration, copied from the program constants.
inline constexpr auto AdresPlatnika = lista({
    {"kraj", Text, Stala},
    {"woj", Text, Stala},
    {"powiat", Text, Stala},
    {"gmina", Text, Stala},
    {"ulica", Text, Stala},
    {"nr_dom", Text, Stala},
    {"nr_lok", Text, Stala},
    {"miejsc", Text, Stala},
    {"kod_pocz", Text, Stala},
    {"poczta", Text, Stala},
});

inline constexpr SeriaNazw<8> NazwyNrP{"nr_p_"};
inline constexpr SeriaNazw<8> NazwyPrzy{"przy_"};
inline constexpr SeriaNazw<8> NazwyKup{"kup_"};
inline constexpr SeriaNazw<8> NazwyPobZal{"pob_zal_"};
inline constexpr SeriaNazw<8> NazwyUbzdrPob{"ubzdr_pob"};
inline constexpr SeriaNazw<8> NazwyUbzdrOdl{"ubzdr_odl"};
inline constexpr SeriaNazw<8> NazwyNrP10{"nr_p_", 10};
inline constexpr SeriaNazw<8> NazwyPobZal10{"pob_zal_", 10};

/// PIT-4, monthly declarations of tax advances, zł. Lines 1 to 8 stand together, six columns each, and
/// lines 10 to 17 behind them, two each: the screen walks both by position. Line 9 is a sum and not stored.
inline constexpr auto PIT4 = polacz(
    lista({
        {"Rok", Short, 0, true},
        {"Mies", Short, 0, true},
        {"id_dekl", Short, 0, true}, // number within the month
        {"rok_tyt", Short}, // year and month of the heading
        {"mies_tyt", Short},
        {"inf_opis", Memo},
        {"Listy", Text, 50}, // list symbols chosen
    }),
    // Number of the line, taxpayers, payments, advances due, health insurance withheld and deducted.
    przeplot(seria(NazwyNrP, Short), seria(NazwyPrzy, Short), seria(NazwyKup, Currency),
             seria(NazwyPobZal, Currency), seria(NazwyUbzdrPob, Currency), seria(NazwyUbzdrOdl, Currency)),
    przeplot(seria(NazwyNrP10, Short), seria(NazwyPobZal10, Currency)),
    lista({
        {"us", Text, Stala},
        {"Imie", Text, Stala}, // who filled it in, and when
        {"Nazw", Text, Stala},
        {"data_wyp", Date},
        {"roznica", Memo}, // why the tax paid differs; several lines of 140 characters
        {"datawplaty", Date},
        {"kwota_zapl", Currency},
        {"przekazano", Short}, // 0 not told, 1 at the cash desk, 2 by post, 3 from an account
        {"Nip", Text, Stala},
        {"pla_niefiz", Text, 1}, // "x" at the payer's kind
        {"pla_fiz", Text, 1},
        {"Nazwa", Text, Stala},
        {"Data", Date}, // made on
    }),
    AdresPlatnika);

/// Heading of a yearly declaration: the payer, copied from the program constants.
inline constexpr auto Platnik = polacz(
    lista({
        {"Nip", Text, Stala},
        {"od_d", Date}, // period of work
        {"do_d", Date},
        {"us", Text, Nazwa}, // tax office
        {"rodzaj_pla1", Text, 1}, // "x" at the payer's kind
        {"rodzaj_pla2", Text, 1},
        {"Nazwa", Text, Stala}, // full name, short name, register number
        {"skrot", Text, Stala},
        {"reg_pes", Text, Stala},
    }),
    AdresPlatnika);

/// The taxpayer of a yearly declaration, copied from the personnel file.
inline constexpr auto Podatnik = lista({
    {"numer_id", Text, Nip},
    {"Nazwisko", Text, Nazwisko},
    {"imie1", Text, Imie},
    {"data_ur", Date},
    {"p_kraj", Text, Kraj},
    {"p_woj", Text, Miejscowosc},
    {"p_gmina", Text, Miejscowosc},
    {"p_powiat", Text, Miejscowosc},
    {"p_ul", Text, Ulica},
    {"p_nr_d", Text, NumerDomu},
    {"p_nr_l", Text, NumerDomu},
    {"p_miejsc", Text, Miejscowosc},
    {"p_kod", Text, KodPocztowy},
    {"p_poczta", Text, Miejscowosc},
});

/// Who filled a yearly declaration in, and when.
inline constexpr auto Wypelniajacy = lista({
    {"Imie", Text, Stala},
    {"Nazw", Text, Stala},
    {"data_wyp", Date},
});

inline constexpr SeriaNazw<10> NazwyPrzychodu{"przy_"};
inline constexpr SeriaNazw<10> NazwyKosztu{"kup_"};
inline constexpr SeriaNazw<10> NazwyDochodu{"dochod_"};
inline constexpr SeriaNazw<10> NazwyZaliczki{"pob_zal_"};

/// PIT-11, the one working row of the yearly information. Sources 1 to 10, zł; costs exist for four lines.
inline constexpr auto PIT11 = polacz(
    Platnik,
    Podatnik,
    lista({
        {"kuz1", Text, 1}, // "x" at the kind of costs
        {"kuz2", Text, 1},
        {"kuz3", Text, 1},
    }),
    seria(NazwyPrzychodu, Currency),
    lista({
        {"przy_1a", Currency},
        {"kup_1", Currency},
        {"kup_8", Currency},
        {"kup_9", Currency},
        {"kup_1a", Currency},
    }),
    seria(NazwyDochodu, Currency),
    seria(NazwyZaliczki, Currency),
    lista({
        {"Skladki", Currency}, // social contributions
        {"skl_pob", Currency}, // health insurance: withheld, deducted
        {"skl_odl", Currency},
        {"pitrtak", Text, 1}, // "x": annex enclosed, not enclosed
        {"pitrnie", Text, 1},
    }),
    Wypelniajacy);

/// Sources of PIT-40 and PIT-8B, zł: income, costs, their difference, advances, then the contributions.
inline constexpr auto ZrodlaPrzychodu = polacz(
    seria(NazwyPrzychodu, Currency),
    seria(NazwyKosztu, Currency),
    seria(NazwyDochodu, Currency),
    seria(NazwyZaliczki, Currency),
    lista({
        {"Skladki", Currency}, // social contributions
        {"skl_pob", Currency}, // health insurance: withheld, deducted
        {"skl_odl", Currency},
    }));

/// PIT-40, the one working row of the yearly settlement, zł.
inline constexpr auto PIT40 = polacz(
    Platnik,
    Podatnik,
    ZrodlaPrzychodu,
    lista({
        {"doch_odl", Currency}, // income less social contributions
        {"podst", Currency}, // tax base, whole zł
        {"pod_obl", Currency}, // tax by the scale, tax due
        {"podatek", Currency},
        {"nadplata", Currency}, // overpaid, still to pay
        {"doplata", Currency},
    }),
    Wypelniajacy);

/// PIT-8B, the one working row of the information on flat-rate tax.
inline constexpr auto PIT8B = polacz(Platnik, Podatnik, ZrodlaPrzychodu, Wypelniajacy);

/// DRA, monthly settlements with the insurer, zł.
inline constexpr KolumnaDef ZUS[] = {
    {"ROKMIES", Text, 6, true}, // yyyymm
    {"ID_DEKL", Short, 0, true}, // number within the month
    {"kedu", Text, 1}, // goes into the next collection, T/N
    {"Listy", Text, 50}, // list symbols chosen
    {"inf_opis", Memo},
    {"data_wyp", Date},
    {"il_ub", Short}, // insured persons
    {"Feprd", Currency}, // contributions; prd the employer's, prc the insured's
    {"Feprc", Currency},
    {"Frprd", Currency},
    {"Frprc", Currency},
    {"FcPrc", Currency},
    {"fwprd", Currency},
    {"swiad_fc", Currency}, // benefits paid out of sickness and accident insurance and of the state budget
    {"swiad_fw", Currency},
    {"swiad_bp", Currency},
    {"Ubzdr", Currency},
    {"Fp", Currency},
    {"Fgsp", Currency},
    {"do_zaplaty", Currency},
};

/// Tax offices.
inline constexpr KolumnaDef US[] = {
    {"US_ID", Short, 0, true},
    {"Nazwa", Text, Nazwa},
    {"Kod", Text, KodPocztowy},
    {"miasto", Text, Miejscowosc},
    {"ulica", Text, Ulica},
    {"nr_domu", Text, NumerDomu},
    {"nr_lokalu", Text, NumerDomu},
    {"telefon", Text, Telefon},
    {"faks", Text, Telefon},
    {"bank", Text, Nazwa},
    {"konto", Text, Konto},
    {"inf_opis", Memo},
};

/// Workplaces of the employer.
inline constexpr KolumnaDef M_PRACY[] = {
    {"MP_ID", Short, 0, true},
    {"Nazwa", Text, Nazwa},
    {"Kod", Text, KodPocztowy},
    {"miasto", Text, Miejscowosc},
    {"gmina", Text, Miejscowosc},
    {"ulica", Text, Ulica},
    {"nr_domu", Text, NumerDomu},
    {"nr_lokalu", Text, NumerDomu},
    {"telefon", Text, Telefon},
    {"faks", Text, Telefon},
    {"zza", Text, 1}, // notice to the insurer, "0" none; text here and a number in KONTA: deliberate
};

/// Bank accounts of the employer.
inline constexpr KolumnaDef KONTA[] = {
    {"NR", Short, 0, true},
    {"skrot", Text, 30},
    {"Nazwa", Text, Nazwa},
    {"konto", Text, Konto},
    {"zba", Short}, // notice to the insurer: 0 none, 1 new account, 2 account closed
};

/// The one transfer order being printed. Names and title are cut into lines of 45 characters.
inline constexpr KolumnaDef PRZELEW[] = {
    {"nazodb", Text, 45}, // receiver
    {"nazodbcd", Text, 45},
    {"LK", Text, 2},
    {"nrrachodb1", Text, 8}, // his account in three parts
    {"nrrachodb2", Text, 24},
    {"nrrachodb3", Text, 24},
    {"Kwota", Currency}, // zł
    {"NrRachZlec", Text, 45}, // sender
    {"nazzlec", Text, 45},
    {"nazzleccd", Text, 45},
    {"Tytulem", Text, 45},
    {"tytulemcd", Text, 45},
};

// clang-format on
} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Zlecenie[] = {"UZLID"};
inline constexpr std::string_view Dzielo[] = {"UODID"};
inline constexpr std::string_view Honorarium[] = {"HONID"};
inline constexpr std::string_view DeklaracjaZUS[] = {"ROKMIES", "ID_DEKL"};
inline constexpr std::string_view UrzadSkarbowy[] = {"US_ID"};
inline constexpr std::string_view MiejscePracy[] = {"MP_ID"};
inline constexpr std::string_view KontoBankowe[] = {"NR"};
} // namespace klucze

inline constexpr TabelaDef UZL{"UZL", kolumny::UZL, klucze::Zlecenie};
inline constexpr TabelaDef UOD{"UOD", kolumny::UOD, klucze::Dzielo};
inline constexpr TabelaDef HON{"HON", kolumny::HON, klucze::Honorarium};
inline constexpr TabelaDef PIT4{"PIT4", kolumny::PIT4, klucze::Miesiac, Klucz::Wieloznaczny};
// Each holds the one row that its screen works on and fills anew at each opening.
inline constexpr TabelaDef PIT11{"PIT11", kolumny::PIT11, {}, Klucz::Jednoznaczny, {}, Slad::Zaden};
inline constexpr TabelaDef PIT40{"PIT40", kolumny::PIT40, {}, Klucz::Jednoznaczny, {}, Slad::Zaden};
inline constexpr TabelaDef PIT8B{"PIT8B", kolumny::PIT8B, {}, Klucz::Jednoznaczny, {}, Slad::Zaden};
inline constexpr TabelaDef ZUS{"ZUS", kolumny::ZUS, klucze::DeklaracjaZUS};
inline constexpr TabelaDef US{"US", kolumny::US, klucze::UrzadSkarbowy};
inline constexpr TabelaDef M_PRACY{"M_PRACY", kolumny::M_PRACY, klucze::MiejscePracy};
inline constexpr TabelaDef KONTA{"KONTA", kolumny::KONTA, klucze::KontoBankowe};
// One transfer order after the other on its way to paper.
inline constexpr TabelaDef PRZELEW{"PRZELEW", kolumny::PRZELEW, {}, Klucz::Jednoznaczny, {}, Slad::Zaden};

} // namespace schemat

} // namespace tornel::store
