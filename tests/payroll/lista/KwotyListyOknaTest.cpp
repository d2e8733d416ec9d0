// Amounts on the payroll list: the totals under it, the way from the components to the amount to pay, and
// components without an amount.
#include "okna/WierszSum.h"
#include "payroll/lista/SumyListy.h"
#include "wsparcie/OknaPlacTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <map>
#include <QCheckBox>

namespace tornel::testy {

namespace {

class KwotyListyOknaTest : public OknaPlacTestowe {};

TEST_F(KwotyListyOknaTest, RazemIdzieZaWierszami) {
    lista(3);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    const auto oczekujRazem = [&] {
        ASSERT_TRUE(sesja().ZnajdzMiesiac(kLipiec));
        const Recordset& place = sesja().rsPLACE;
        const QString brutto = NapisKwoty(place.kwota(schemat::PLACE("sum_brutto")));
        const QString doWyplaty = NapisKwoty(place.kwota(schemat::PLACE("do_wyplaty")));
        EXPECT_EQ(widzet<WierszSum>(okno, u"sumyPlace"_s).teksty(),
                  (QStringList{u"Razem"_s, {}, {}, brutto, doWyplaty}));
    };
    EXPECT_TRUE(wiersze(okno, u"lvwPlace"_s)[1].endsWith(u"|1\u00a0650,00|"_s + NapisKwoty(zl(1142.23))))
        << wiersze(okno, u"lvwPlace"_s)[1].toStdString();
    oczekujRazem();
    wybierz(okno, 1);
    zmien(okno, u"txtKosztyUz"_s, u"0"_s);
    zmien(okno, u"txtPlus(5)"_s, u"350"_s);
    klik(okno, u"cmdPrzelicz"_s);
    EXPECT_TRUE(wiersze(okno, u"lvwPlace"_s)[1].contains(u"|2\u00a0000,00|"_s));
    oczekujRazem();
    rozmowa_.spodziewaj(u"Czy na pewno usunąć pracownika o numerze 2 z miesięcznej listy płac ?"_s,
                        Odpowiedz::Tak);
    klik(okno, u"cmdUsun"_s);
    EXPECT_EQ(wiersze(okno, u"lvwPlace"_s).size(), 2);
    oczekujRazem();
}

/// The names of the fields that are seen and begin so, from the top of the screen, the leftmost of a line.
QString widocznePola(const QWidget& okno, const QString& poczatek) {
    std::map<int, QString> zGory;
    QCoreApplication::processEvents();
    for (const auto* pole : widzet(okno, u"tabPlace"_s).findChildren<QLineEdit*>())
        if (pole->isVisible() && pole->objectName().startsWith(poczatek) &&
            !pole->objectName().startsWith(u"txtPodstawa"_s)) // stand beside
            zGory.emplace(pole->mapTo(&okno, QPoint()).y(), pole->objectName());
    QStringList wynik;
    for (const auto& [y, nazwa] : zGory) wynik += nazwa.mid(3);
    return wynik.join(u' ');
}

TEST_F(KwotyListyOknaTest, DrogaOdSkladnikowDoWyplaty) {
    lista(1);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    EXPECT_EQ(widocznePola(okno, u"txtDroga"_s), u"DrogaPlus(1)"_s);
    for (const auto& [pole, kwota] : {std::pair(u"txtPlus(5)"_s, u"350"_s),
                                      {u"txtPlus(16)"_s, u"50"_s},
                                      {u"txtMinus(9)"_s, u"100"_s},
                                      {u"txtMinus(1)"_s, u"20"_s}})
        zmien(okno, pole, kwota);
    klik(okno, u"cmdPrzelicz"_s);
    widzet<QTabWidget>(okno, u"tabPlace"_s).setCurrentIndex(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(
        widocznePola(okno, u"txt"_s),
        u"DrogaPlus(1) DrogaPlus(5) DrogaMinus(9) Brutto FEPC FRPC FC Skladki KosztyUz Netto PodDoch "
        "UlgaPod UZNA UZPO Podatek19 PoPodatku DrogaPlus(16) Dodatki DrogaMinus(1) Potracenia DoWyplaty "
        "Przelewem"_s);
    const auto kwota = [&](const QString& pole) { return KwotaAlboZero(tekst(okno, pole)); };
    EXPECT_EQ(kwota(u"txtBrutto"_s), zl(1650 + 350 - 100));
    EXPECT_EQ(kwota(u"txtSkladki"_s), kwota(u"txtFEPC"_s) + kwota(u"txtFRPC"_s) + kwota(u"txtFC"_s));
    EXPECT_EQ(kwota(u"txtNetto"_s), kwota(u"txtBrutto"_s) - kwota(u"txtSkladki"_s) - kwota(u"txtKosztyUz"_s));
    EXPECT_EQ(kwota(u"txtDoWyplaty"_s), kwota(u"txtPoPodatku"_s) + zl(50) - zl(20));

    // What neither additions nor deductions explain has a line of its own.
    ustawIZapisz("DO_WYPLATY=1000");
    EXPECT_EQ(PoliczDroge(sesja().rsPLA.biezacyWiersz(), sesja().rsPLB.biezacyWiersz()).pozostale,
              zl(1000) - kwota(u"txtDoWyplaty"_s));
}

TEST_F(KwotyListyOknaTest, ZeroweSkladnikiDajaSieUkryc) {
    lista(2);
    const QString kSkladniki = u"txtPlus"_s;
    {
        frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
        pokaz(okno);
        auto& zakladki = widzet<QTabWidget>(okno, u"tabPlace"_s);
        zakladki.setCurrentIndex(1);
        const QString wszystkie = widocznePola(okno, kSkladniki);
        EXPECT_TRUE(wszystkie.contains(u"Plus(30)"_s));
        zmien(okno, u"txtPlus(5)"_s, u"350"_s);
        QTest::keyClick(&okno, Qt::Key_S, Qt::AltModifier);
        // The letter shows its box pressed for a moment first.
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return widzet<QCheckBox>(okno, u"chkBezZerowych"_s).isChecked(); }));
        EXPECT_EQ(widocznePola(okno, kSkladniki), u"Plus(1) Plus(5)"_s);
        zmien(okno, u"txtPlus(5)"_s, u"wcale"_s);
        EXPECT_TRUE(widzet(okno, u"txtPlus(5)"_s).isVisible()) << "it has something to say";
        zmien(okno, u"txtPlus(5)"_s, u"10"_s);
        zmien(okno, u"txtPlus(5)"_s, u"0"_s);
        EXPECT_EQ(widocznePola(okno, kSkladniki), u"Plus(1)"_s);
        zakladki.setCurrentIndex(2);
        EXPECT_TRUE(widocznePola(okno, u"txtMinus"_s).isEmpty());
        klik(okno, u"chkBezZerowychU"_s);
        EXPECT_EQ(widocznePola(okno, u"txtMinus"_s), u"Minus(1) Minus(9) Minus(15)"_s);
        zakladki.setCurrentIndex(1);
        EXPECT_EQ(widocznePola(okno, kSkladniki), wszystkie);
        klik(okno, u"chkBezZerowych"_s);
    }
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    widzet<QTabWidget>(okno, u"tabPlace"_s).setCurrentIndex(1);
    EXPECT_EQ(widocznePola(okno, kSkladniki), u"Plus(1)"_s) << "remembered";
}

TEST_F(KwotyListyOknaTest, NaSzerokimOknieSkladnikiStojaObok) {
    lista(1);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    auto& zakladki = widzet<QTabWidget>(okno, u"tabPlace"_s);
    const auto widac = [&](const QString& pole) {
        QCoreApplication::processEvents();
        return widzet(okno, pole).isVisible();
    };
    EXPECT_FALSE(widac(u"txtPlus(5)"_s));
    okno.resize(1880, 1000);
    EXPECT_TRUE(widac(u"txtPlus(5)"_s));
    EXPECT_TRUE(widac(u"txtMinus(1)"_s));
    EXPECT_GE(widzet(okno, u"txtPlus(5)"_s).height(), widzet(okno, u"txtFEPC"_s).height()) << "not squeezed";
    zmien(okno, u"txtPlus(5)"_s, u"350"_s);
    QTest::keyClick(&okno, Qt::Key_F9);
    EXPECT_EQ(zakladki.currentIndex(), 0);
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"2000,00"_s) << "cause and effect on one page";
    zakladki.setCurrentIndex(1);
    EXPECT_TRUE(widac(u"txtPlus(5)"_s));
    EXPECT_FALSE(widac(u"txtMinus(1)"_s));
    zakladki.setCurrentIndex(0);
    okno.resize(1200, 700);
    EXPECT_FALSE(widac(u"txtPlus(5)"_s));
}

} // namespace

} // namespace tornel::testy
