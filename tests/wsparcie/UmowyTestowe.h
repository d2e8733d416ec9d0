// Two persons, one of whom makes contracts of all kinds, and a tax office.
#pragma once
#include "contracts/Umowy.h"
#include "store/Sesja.h"
#include "wsparcie/BazaTestowa.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::PRACPR;
using schemat::US;
using schemat::UZL;

class UmowyTestowe : public BazaTestowa {
protected:
    UmowyTestowe() {
        Sesja& s = sesja();
        for (const qint64 nr : {1, 2}) dodajPracownika(nr, nr == 1 ? u"Nowak"_s : u"Kot"_s);
        EXPECT_TRUE(s.rsPRACPR.Znajdz(1));
        for (const auto flaga : {PRACPR("umowa_zlec"), PRACPR("umowa_o_dz"), PRACPR("honorarium")})
            s.rsPRACPR.ustaw(flaga, u"T"_s);
        const std::pair<Kolumna, double> wskazniki[] = {
            {PRACPR("k_uz_uzl"), 20},   {PRACPR("st_pod_uzl"), 20}, {PRACPR("k_uz_uod"), 50},
            {PRACPR("st_pod_uod"), 19}, {PRACPR("k_uz_hon"), 20},   {PRACPR("st_pod_hon"), 20},
            {PRACPR("wuzfeprd"), 9.76}, {PRACPR("wuzfeprc"), 9.76}, {PRACPR("wuzfrprd"), 6.5},
            {PRACPR("wuzfrprc"), 6.5},  {PRACPR("wuzfcprc"), 2.45}, {PRACPR("wuzfwprd"), 1.62},
            {PRACPR("wuzfp"), 2.45},    {PRACPR("wuzfgsp"), 0.08},  {PRACPR("wuzubzdr"), 7.75},
        };
        for (const auto& [kolumna, wartosc] : wskazniki) s.rsPRACPR.ustaw(kolumna, zl(wartosc));
        s.rsPRACPR.ustaw(PRACPR("us_id"), 3);
        s.rsPRACPR.UpdateBatch(u"Dane testu");
        Recordset us(US);
        us.Open(s.cnPlace);
        us.AddNewZero(3);
        us.ustaw(US("Nazwa"), u"Drugi Urząd Skarbowy w Radomiu"_s);
        us.UpdateBatch(u"Dane testu");
    }

    static const RodzajUmowy& rodzaj(const QString& tabela) { return *ZnajdzRodzajUmowy(tabela); }
    /// Leaves the fields of "Brutto=1000 wskpod=30" one after the other.
    void opusc(Umowy& umowy, const RodzajUmowy& umowa, const QString& pola) {
        for (const QString& p : pola.split(u' ', Qt::SkipEmptyParts)) {
            const PoleUmowy* pole = ZnajdzPoleUmowy(umowa, p.section(u'=', 0, 0));
            ASSERT_NE(pole, nullptr) << p.toStdString();
            (void)umowy.Opusc(*pole, p.section(u'=', 1));
        }
    }
    /// What the file holds of the contract, against "Netto=840 Podatek=160".
    void oczekuj(const RodzajUmowy& umowa, qint64 id, const QString& pola) {
        Recordset rs(*umowa.tabela);
        rs.Open(sesja().cnPlace);
        ASSERT_TRUE(rs.Znajdz(id));
        for (const QString& p : pola.split(u' ', Qt::SkipEmptyParts))
            EXPECT_EQ(rs.kwota(umowa.kolumna(p.section(u'=', 0, 0).toStdString())),
                      zl(p.section(u'=', 1).toDouble()))
                << p.toStdString();
    }
};

} // namespace tornel::testy
