#include "start/UmowyPrzykladu.h"
#include "common/Liczby.h"
#include "contracts/Umowy.h"
#include "store/Sesja.h"
#include <QStringList>

namespace tornel::start {

using schemat::PRACPR;

namespace {

/// Who makes contracts, and the rates of his personnel file as "column=percent".
struct OsobaUmow {
    int prcId;
    QStringView ustawienia;
};
constexpr OsobaUmow kOsoby[] = {
    {2, u"umowa_zlec=T k_uz_uzl=20 st_pod_uzl=20 wuzfeprd=9,76 wuzfeprc=9,76 wuzfrprd=6,5 wuzfrprc=6,5 "
        u"wuzfcprc=2,45 wuzfwprd=1,62 wuzfp=2,45 wuzfgsp=0,08 wuzubzdr=7,75"},
    {4, u"umowa_zlec=T umowa_o_dz=T honorarium=T k_uz_uzl=20 st_pod_uzl=20 k_uz_uod=50 st_pod_uod=20 "
        u"k_uz_hon=50 st_pod_hon=20"},
    {6, u"umowa_zlec=T k_uz_uzl=20 st_pod_uzl=0 wuzubzdr=7,75"},
    {8, u"umowa_o_dz=T honorarium=T k_uz_uod=20 st_pod_uod=20 k_uz_hon=50 st_pod_hon=20"},
};

/// One contract: fields as "column=text", typed in this order.
struct UmowaPrzykladu {
    QStringView rodzaj;
    int prcId;
    QDate (*zawarta)();
    QStringView przedmiot, pola;
};

template <int Mies, int Dzien>
QDate dnia() {
    return {2001, Mies, Dzien};
}

constexpr UmowaPrzykladu kUmowy[] = {
    {u"UZL", 2, dnia<1, 8>, u"Spis z natury magazynu tarcicy",
     u"uzl_nr=1/2001 data_od=08-01-2001 data_do=12-01-2001 data_wyp=19-01-2001 Brutto=800"},
    {u"UZL", 4, dnia<1, 22>, u"Tłumaczenie instrukcji obrabiarki",
     u"uzl_nr=2/2001 data_od=22-01-2001 data_do=31-01-2001 data_wyp=02-02-2001 Brutto=1200 przelewem=1008 "
     u"paczka=1"},
    // No tax, so that the health insurance makes it negative.
    {u"UZL", 6, dnia<2, 5>, u"Sprzątanie hali po remoncie",
     u"uzl_nr=3/2001 data_od=05-02-2001 data_do=09-02-2001 data_wyp=16-02-2001 Brutto=400"},
    {u"UZL", 4, dnia<3, 12>, u"Tłumaczenie katalogu wyrobów",
     u"uzl_nr=4/2001 data_od=12-03-2001 data_do=30-03-2001 Brutto=1500 us_id=0"},
    {u"UOD", 4, dnia<2, 12>, u"Opracowanie graficzne katalogu wyrobów",
     u"uod_nr=1/2001 data_od=12-02-2001 data_do=02-03-2001 data_wyp=09-03-2001 Brutto=2000 przelewem=1800"},
    {u"UOD", 8, dnia<3, 5>, u"Projekt stoiska na targi meblowe",
     u"uod_nr=2/2001 data_od=05-03-2001 data_do=23-03-2001 data_wyp=30-03-2001 Brutto=900"},
    {u"HON", 8, dnia<1, 15>, u"Artykuł do folderu firmy",
     u"hon_nr=1/2001 data_wyp=26-01-2001 Brutto=300 przelewem=270"},
    {u"HON", 4, dnia<3, 19>, u"Fotografie wyrobów do folderu",
     u"hon_nr=2/2001 data_wyp=30-03-2001 Brutto=600"},
};

void ustawOsobe(Sesja& sesja, const OsobaUmow& osoba) {
    Recordset& pr = sesja.rsPRACPR;
    if (!pr.Znajdz(osoba.prcId)) return;
    for (const QString& u : osoba.ustawienia.toString().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString wartosc = u.section(QLatin1Char('='), 1);
        const auto k = PRACPR.nr(PRACPR.numer(u.section(QLatin1Char('='), 0, 0).toStdString()));
        if (wartosc == QLatin1String("T"))
            pr.ustaw(k, wartosc);
        else
            pr.ustaw(k, KwotaAlboZero(wartosc));
    }
    pr.UpdateBatch(u"Umowy firmy przykładowej");
}

void dodajUmowe(Otoczenie& o, const UmowaPrzykladu& u) {
    const RodzajUmowy& rodzaj = *ZnajdzRodzajUmowy(u.rodzaj.toString());
    Umowy umowy(o, rodzaj);
    (void)umowy.Wypisz(umowy.Nowy(u.prcId, u.zawarta()));
    (void)umowy.Opusc(*ZnajdzPoleUmowy(rodzaj, QStringLiteral("przedm")), u.przedmiot.toString());
    for (const QString& p : u.pola.toString().split(QLatin1Char(' '), Qt::SkipEmptyParts))
        (void)umowy.Opusc(*ZnajdzPoleUmowy(rodzaj, p.section(QLatin1Char('='), 0, 0)),
                          p.section(QLatin1Char('='), 1));
    umowy.Wpisz();
}

} // namespace

void DodajUmowyPrzykladu(Otoczenie& otoczenie, int ile) {
    for (const OsobaUmow& osoba : kOsoby) ustawOsobe(otoczenie.sesja, osoba);
    for (const UmowaPrzykladu& u : kUmowy)
        if (u.prcId <= ile) dodajUmowe(otoczenie, u);
}

} // namespace tornel::start
