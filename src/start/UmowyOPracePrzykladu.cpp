#include "start/UmowyOPracePrzykladu.h"
#include "common/Liczby.h"
#include "personnel/UmowyOPrace.h"
#include "store/Sesja.h"

namespace tornel::start {

using schemat::UMOP;

namespace {

struct DzienUmowy {
    int rok, mies, dzien;
    [[nodiscard]] QDate data() const { return {rok, mies, dzien}; }
};

/// A contract of its own, in their order; what the personnel file does not say of it.
struct UmowaFirmy {
    int prcId;
    DzienUmowy zawarta;
    RodzajUmowyOPrace rodzaj;
    DzienUmowy od, dokad; ///< year 0 for what the file says, or no end
    QStringView numer;
};
constexpr DzienUmowy kZKartoteki{0, 0, 0};
using enum RodzajUmowyOPrace;
constexpr UmowaFirmy kUmowyFirmy[] = {
    {1, {1992, 3, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"3/1992"},
    {2, {1984, 6, 15}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"7/1984"},
    {3, {1990, 9, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"11/1990"},
    {4, {1999, 10, 1}, OkresProbny, {1999, 10, 1}, {1999, 12, 31}, u"5/1999"},
    {4, {1999, 12, 30}, CzasOkreslony, {2000, 1, 1}, {2000, 9, 30}, u"8/1999"},
    {4, {2000, 9, 28}, CzasOkreslony, {2000, 10, 1}, {2001, 9, 30}, u"6/2000"},
    {5, {1995, 2, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"1/1995"},
    {6, {2000, 12, 29}, CzasOkreslony, kZKartoteki, kZKartoteki, u"9/2000"},
    {7, {1997, 1, 10}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"1/1997"},
    {8, {1993, 5, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"2/1993"},
    {9, {1996, 8, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"4/1996"},
    {10, {2001, 1, 31}, CzasOkreslony, kZKartoteki, kZKartoteki, u"1/2001"},
    {11, {1989, 7, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"6/1989"},
    {12, {1994, 12, 1}, CzasNieokreslony, kZKartoteki, kZKartoteki, u"8/1994"},
};

qint64 dodajUmoweFirmy(UmowyOPrace& umowy, const UmowaFirmy& u) {
    const qint64 id = umowy.Nowa(u.prcId, u.zawarta.data());
    (void)umowy.Ustaw(id);
    Recordset& rs = umowy.tabela();
    rs.ustaw(UMOP("umop_nr"), u.numer.toString());
    rs.ustaw(UMOP("rodzaj"), static_cast<qint64>(u.rodzaj));
    if (u.od.rok > 0) rs.ustaw(UMOP("data_od"), u.od.data());
    if (u.dokad.rok > 0) rs.ustaw(UMOP("data_do"), u.dokad.data());
    if (u.rodzaj == CzasNieokreslony) rs.ustaw(UMOP("data_do"), QDate());
    rs.ustawFlage(UMOP("wyp_2tyg"), u.rodzaj == CzasOkreslony);
    umowy.Wpisz();
    return id;
}

/// Three months of notice, up to the day on which the file has him dismissed.
void wypowiedzUmowe(UmowyOPrace& umowy, qint64 id) {
    (void)umowy.Ustaw(id);
    Recordset& rs = umowy.tabela();
    rs.ustaw(UMOP("sposob"), static_cast<qint64>(SposobRozwiazania::WypowiedzenieFirmy));
    rs.ustaw(UMOP("data_wyp"), QDate(2000, 10, 27));
    rs.ustaw(UMOP("data_roz"), QDate(2001, 1, 31));
    rs.ustaw(
        UMOP("przyczyna"),
        QStringLiteral("Likwidacja stanowiska pracy z powodu zmniejszenia produkcji mebli stolarskich."));
    umowy.Wpisz();
}

void dodajZmiane(UmowyOPrace& umowy, qint64 id) {
    (void)umowy.Ustaw(umowy.Zmiana(id, {2001, 5, 1}));
    Recordset& rs = umowy.tabela();
    rs.ustaw(UMOP("umop_nr"), QStringLiteral("Z-1/2001"));
    rs.ustaw(UMOP("data_zaw"), QDate(2001, 4, 20));
    rs.ustaw(UMOP("stanow"), QStringLiteral("brygadzista stolarni"));
    rs.ustaw(UMOP("placa_zas"), KwotaAlboZero(QStringLiteral("1850,00")));
    umowy.Wpisz();
}

} // namespace

void DodajUmowyOPracePrzykladu(Otoczenie& otoczenie, int ile) {
    UmowyOPrace umowy(otoczenie);
    for (const UmowaFirmy& u : kUmowyFirmy) {
        if (u.prcId > ile) continue;
        const qint64 id = dodajUmoweFirmy(umowy, u);
        if (u.prcId == 9) wypowiedzUmowe(umowy, id);
        if (u.prcId == 2) dodajZmiane(umowy, id);
    }
}

} // namespace tornel::start
