#include "wsparcie/OknaPlacTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

class ListaPlacOknaTest : public OknaPlacTestowe {};

TEST_F(ListaPlacOknaTest, OdNowegoMiesiacaDoSum) {
    pracownik(7, kPracownik, u"Żak"_s);
    frmPlace place(otoczenie());
    pokaz(place);
    EXPECT_EQ(place.windowTitle(), u"Lista płac"_s);
    EXPECT_FALSE(widzet(place, u"Command2"_s).isEnabled());
    rozmowa_.spodziewaj(u"Czy na pewno utworzyć nową listę ?"_s, Odpowiedz::Tak);
    wOknie<frmInputData>([this](frmInputData& okno) {
        widzet<QComboBox>(okno, u"cboMies"_s).setCurrentIndex(6);
        widzet<QSpinBox>(okno, u"spnRok"_s).setValue(2001);
        klik(okno, u"cmdOK"_s);
    });
    klik(place, u"cmdNowy"_s);
    EXPECT_EQ(wiersze(place, u"lvwLista"_s), QStringList{u"07.2001|LIPIEC|"_s});

    wOknie<frmPlaceLista>([this](frmPlaceLista& okno) {
        EXPECT_EQ(okno.windowTitle(), u"Lista plac za miesiąc 07.2001"_s);
        EXPECT_FALSE(widzet(okno, u"cmdPrzelicz"_s).isEnabled());
        rozmowa_.spodziewaj(pytania::dniWylaczone, Styl::Wykrzyknik);
        wybierzOsoby();
        klik(okno, u"cmdNowy"_s);
        EXPECT_EQ(wiersze(okno, u"lvwPlace"_s), QStringList{u"Żak Anna|007| |0,00|0,00"_s});
        auto& przelicz = widzet(okno, u"cmdPrzelicz"_s);
        EXPECT_TRUE(przelicz.property("doPrzeliczenia").toBool());
        EXPECT_EQ(widzet<QTabWidget>(okno, u"tabPlace"_s).currentIndex(), 1) << "the components";
        EXPECT_EQ(tekst(okno, u"txtPlus(1)"_s), u"1650,00"_s);
        EXPECT_EQ(tekst(okno, u"txtDataKonc(1)"_s), u"31-07-2001"_s);
        zmien(okno, u"txtPlus(5)"_s, u"350"_s);
        zmien(okno, u"txtDataPocz(5)"_s, u"15072001"_s);
        klik(okno, u"cmdPrzelicz"_s);
        EXPECT_FALSE(przelicz.property("doPrzeliczenia").toBool());
        EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"2000,00"_s);
        EXPECT_EQ(tekst(okno, u"txtPodstawaZUS"_s), u"2000,00"_s);
        klik(okno, u"cmdAnuluj"_s);
    });
    QTest::keyClick(&widzet(place, u"lvwLista"_s), Qt::Key_Return);
    EXPECT_EQ(otwarte_, 3);
    // 2000 less contributions of 195,20, 130 and 49; 1523,98 to be taxed; 289,56 less the credit of 36,35.
    oczekujWPliku({7, u" "_s}, "SP_5=350 SOD_5=2001-07-15 BRUTTO=2000 FEPRC=195,2 FRPRC=130 FCPRC=49 "
                               "NETTO=1523,98 POD_DOCH=289,56 UBZDR=126 PODATEK=127,2 DO_WYPLATY=1372,59");
    oczekujSum(kLipiec, "il_wyplat=1 sum_brutto=2000 sum_netto=1523,98 do_wyplaty=1372,59");
    EXPECT_EQ(tekst(place, u"txtDoWyplaty"_s), u"1372,59"_s);
    EXPECT_EQ(sesja().rok(), 0) << "the month is closed with its list";
}

/// Each amount typed on the screen does to its row what the same change through the list does to its twin.
TEST_F(ListaPlacOknaTest, KazdaKwotaUruchamiaSwojLancuch) {
    const auto pola = polaListy();
    Transakcja szybko(sesja().cnPlace, u"Dane testu"); // spares a sync of the file for each field
    lista(static_cast<int>(2 * pola.size()));
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    const QString nadwyzka = u"Kwota odpisu w ramach PPE jest większa od średniej. Czy zwiększyć podstawę do "
                             u"ZUS o różnicę między kwotą odpisu a średnią ?"_s;
    for (std::size_t i = 0; i < pola.size(); ++i) {
        const QString nazwa = pola[i].nazwa.toString();
        SCOPED_TRACE(nazwa.toStdString());
        widzet<WidokListy>(okno, u"lvwPlace"_s).wybierz(static_cast<qint64>(2 * i));
        if (nazwa == u"txtPotrPPE") rozmowa_.spodziewaj(nadwyzka, Odpowiedz::Tak);
        zmien(okno, nazwa, u"12.5"_s);
        EXPECT_EQ(tekst(okno, nazwa), u"12,50"_s);
        EXPECT_TRUE(rozmowa_.gotowa());
    }
    okno.done(0);

    ListaPlac blizniaki(otoczenie(), 2001, 7, u" "_s);
    const QString pusta = u" "_s;
    for (std::size_t i = 0; i < pola.size(); ++i) {
        SCOPED_TRACE(pola[i].nazwa.toString().toStdString());
        const auto nr = static_cast<qint64>(2 * i + 1);
        ASSERT_TRUE(blizniaki.Wypisz_daneP({nr + 1, pusta}));
        if (pola[i].nazwa == u"txtPotrPPE") rozmowa_.spodziewaj(nadwyzka, Odpowiedz::Tak);
        blizniaki.ZmienKwote(pola[i], zl(12.5));
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca) {
            Recordset wiersz = zPliku(*tabela), blizniak = zPliku(*tabela);
            ASSERT_TRUE(wiersz.Znajdz(nr, pusta) && blizniak.Znajdz(nr + 1, pusta));
            for (int k = 1; k < static_cast<int>(tabela->kolumny.size()); ++k)
                if (tabela->kolumny[static_cast<std::size_t>(k)].nazwa != "NAZ")
                    EXPECT_EQ(tekstWartosci(wiersz.wartosc(tabela->nr(k))),
                              tekstWartosci(blizniak.wartosc(tabela->nr(k))))
                        << tabela->kolumny[static_cast<std::size_t>(k)].nazwa;
        }
    }
}

TEST_F(ListaPlacOknaTest, ZlosliweTekstyWPolachLiczb) {
    lista(3);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    wybierz(okno, 1);
    struct Przypadek {
        QString wpisany, kwota, dni;
    };
    const Przypadek przypadki[] = {
        {u"abc"_s, u"0,00"_s, u"0"_s},         {u"1,2,3"_s, u"0,00"_s, u"0"_s},
        {u"1 650"_s, u"1650,00"_s, u"1650"_s}, {u" 17 "_s, u"17,00"_s, u"17"_s},
        {u"1e300"_s, u"0,00"_s, u"0"_s},       {u"-0"_s, u"0,00"_s, u"0"_s},
        {u"-5"_s, u"-5,00"_s, u"-5"_s},        {u"😀"_s, u"0,00"_s, u"0"_s},
        {u"٣٤"_s, u"0,00"_s, u"0"_s},          {u"0,125"_s, u"0,13"_s, u"0"_s},
        {u"' OR 1=1"_s, u"0,00"_s, u"0"_s},    {u"%1\\0"_s, u"0,00"_s, u"0"_s},
        {QString(5000, u'7'), {}, u"0"_s},     {u"NaN"_s, u"0,00"_s, u"0"_s},
    };
    naprawiaj();
    Transakcja szybko(sesja().cnPlace, u"Dane testu"); // spares a sync of the file for each field
    for (const Przypadek& p : przypadki) {
        SCOPED_TRACE(p.wpisany.left(20).toStdString());
        for (const QString& nazwa : {u"txtPlus(1)"_s, u"txtMinus(15)"_s, u"txtFP"_s, u"txtKosztyUz"_s}) {
            zmien(okno, nazwa, u"3"_s);
            zmien(okno, nazwa, p.wpisany);
            if (!p.kwota.isNull()) EXPECT_EQ(tekst(okno, nazwa), p.kwota) << nazwa.toStdString();
        }
        zmien(okno, u"txtWypocz"_s, u"3"_s);
        zmien(okno, u"txtWypocz"_s, p.wpisany);
        EXPECT_EQ(tekst(okno, u"txtWypocz"_s), p.dni);
    }
    zmien(okno, u"txtDataPocz(1)"_s, u"31022001"_s);
    EXPECT_EQ(tekst(okno, u"txtDataPocz(1)"_s), QString()) << "no such day: null";
    EXPECT_EQ(bledy_, QStringList());
    for (const qint64 nr : {1, 3}) oczekujWPliku({nr, u" "_s}, "SP_1=1650 SM_15=0 KUP=101,82 DNI_UWYP=0");
    oczekujWPliku({2, u" "_s}, "SP_1=0 SOD_1=null SKL_FP=0 DNI_UWYP=0");
}

TEST_F(ListaPlacOknaTest, PrzepelnienieCofaCzynnoscIPozwalaPracowacDalej) {
    lista(2);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    naprawiaj();
    zmien(okno, u"txtPlus(1)"_s, u"900000000000000"_s);
    zmien(okno, u"txtPlus(5)"_s, u"900000000000000"_s);
    klik(okno, u"cmdPrzelicz"_s);
    EXPECT_EQ(bledy_.size(), 1);
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"1650,00"_s) << "the calculation was undone";
    zmien(okno, u"txtPlus(5)"_s, u"0"_s);
    zmien(okno, u"txtFEPC"_s, u"900000000000000"_s);
    zmien(okno, u"txtFRPC"_s, u"900000000000000"_s);
    EXPECT_EQ(bledy_.size(), 2);
    EXPECT_EQ(tekst(okno, u"txtFRPC"_s), u"107,25"_s);
    zmien(okno, u"txtPlus(1)"_s, u"10"_s);
    zmien(okno, u"txtPlus(5)"_s, u"20"_s);
    klik(okno, u"cmdPrzelicz"_s);
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"30,00"_s);
    EXPECT_EQ(bledy_.size(), 2);
    oczekujWPliku({1, u" "_s}, "BRUTTO=30 FEPRC=2,93 FRPRC=1,95");
    oczekujWPliku({2, u" "_s}, "BRUTTO=1650");
}

TEST_F(ListaPlacOknaTest, ZablokowanyMiesiacTylkoDoOgladania) {
    lista(2);
    blokada(kLipiec, Odpowiedz::Tak);
    sesja().cnPlace.wykonaj("UPDATE PLACE SET il_wyplat=0, sum_brutto=0"); // not even to put it right
    otworzPonownie();
    skladnik(5, "   ", true); // the catalogue goes on, the month keeps its names and flags
    ASSERT_TRUE(sesja().rsSZ_PL.Znajdz(1));
    sesja().rsSZ_PL.ustaw(schemat::SZ_PL("naz_sk"), u"Nowa nazwa"_s);
    sesja().rsSZ_PL.UpdateBatch(u"Dane testu");
    otoczenie().skladniki.WczytajSkladnikiPlac(sesja());

    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    EXPECT_TRUE(okno.windowTitle().endsWith(u" - MIESIĄC ZABLOKOWANY"_s));
    for (const QString& nazwa :
         {u"cmdNowy"_s, u"cmdUsun"_s, u"cmdPrzelicz"_s, u"Command1"_s, u"Command3"_s, u"cmdCalaLista"_s})
        EXPECT_FALSE(widzet(okno, nazwa).isEnabled()) << nazwa.toStdString();
    EXPECT_TRUE(widzet(okno, u"cmdDrukuj"_s).isEnabled());
    EXPECT_EQ(widzet(okno, u"txtPlus(1)"_s).accessibleName(), u"S1"_s);
    for (const QLineEdit* pole : widzet(okno, u"tabPlace"_s).findChildren<QLineEdit*>())
        EXPECT_TRUE(pole->isReadOnly() || !pole->isEnabled()) << pole->objectName().toStdString();
    wpisz(okno, u"txtPlus(1)"_s, u"9"_s);
    QTest::keyClick(&okno, Qt::Key_F9);
    wybierz(okno, 1);
    EXPECT_EQ(tekst(okno, u"txtPlus(1)"_s), u"1650,00"_s);
    okno.close();
    EXPECT_FALSE(okno.isVisible());
    oczekujWPliku({1, u" "_s}, "SP_1=1650 BRUTTO=1650");
    oczekujSum(kLipiec, "il_wyplat=0 sum_brutto=0");
}

TEST_F(ListaPlacOknaTest, WieluPracownikowNaraz) {
    miesiac();
    for (const int nr : {3, 1, 2, 4}) pracownik(nr, kPracownik, u"Nowak%1"_s.arg(nr));
    zmienPracownika(2, "placa_zas=900000000000000 Premia_pr=100");
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    wybierzOsoby(u"cmdWszyscy"_s);
    QString powod;
    {
        // What exactly overflowed is the arithmetic's to say; who and that the others went on is the
        // screen's.
        ListaPlac proba(otoczenie(), 2001, 7, u" "_s);
        const RaportSerii raport = proba.DodajPracownikow({2});
        ASSERT_EQ(raport.niepowodzenia.size(), 1);
        powod = raport.tekst();
    }
    rozmowa_.spodziewaj(powod, Styl::Wykrzyknik);
    klik(okno, u"cmdNowy"_s);
    EXPECT_TRUE(rozmowa_.kroki().contains(u"PROSZĘ CZEKAĆ ! Wyliczanie pracownika nr 3"_s));
    EXPECT_EQ(wierszeWPliku(), "1 ,3 ,4 ");
    EXPECT_EQ(widzet<WidokListy>(okno, u"lvwPlace"_s).currentIndex().row(), 2) << "the last one added";
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"1650,00"_s);

    // The same person twice, one at a time: a message, and the row in work stays the one it was.
    wOknie<frmWybPr>([](frmWybPr& wybor) {
        QTest::keyClicks(&widzet(wybor, u"lvwWybPr"_s), u"nowak1"_s);
        QTest::keyClick(&widzet(wybor, u"txtSzukaj"_s), Qt::Key_Return);
    });
    rozmowa_.spodziewaj(u"Nie można wprowadzić dwa razy tej samej osoby na jedną listę!"_s, Styl::Wykrzyknik);
    zmienPracownika(1, "Kup=1");
    klik(okno, u"cmdNowy"_s);
    klik(okno, u"cmdPrzelicz"_s);
    EXPECT_EQ(tekst(okno, u"txtKosztyUz"_s), u"101,82"_s) << "computed with another employee's data";
    EXPECT_EQ(tekst(okno, u"txtPodstawaZUS"_s), u"1650,00"_s);

    zmienPracownika(3, "placa_zas=1000");
    auto& cala = *widzet<QPushButton>(okno, u"cmdCalaLista"_s).menu();
    cala.actions().at(3)->trigger();
    oczekujWPliku({1, u" "_s}, "BRUTTO=1650 KUP=1");
    oczekujWPliku({3, u" "_s}, "BRUTTO=1000");
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"1650,00"_s) << "the row shown is still the one selected";
    EXPECT_EQ(tekst(okno, u"txtPodstawaZUS"_s), QString()) << "the sums are those of another row";

    const QString usunac = u"Czy na pewno usunąć pracownika o numerze 4 z miesięcznej listy płac ?"_s;
    rozmowa_.spodziewaj(usunac, Odpowiedz::Nie);
    klik(okno, u"cmdUsun"_s);
    EXPECT_EQ(wierszeWPliku(), "1 ,3 ,4 ");
    rozmowa_.spodziewaj(usunac, Odpowiedz::Tak);
    klik(okno, u"cmdUsun"_s);
    EXPECT_EQ(wierszeWPliku(), "1 ,3 ");
    EXPECT_EQ(tekst(okno, u"txtBrutto"_s), u"1000,00"_s) << "the neighbour";
    okno.done(0);
    oczekujSum(kLipiec, "il_wyplat=2 sum_brutto=2650");
}

TEST_F(ListaPlacOknaTest, PrzelewINieprawdziweDniPytaja) {
    lista(1);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    const QString zaDuzo =
        u"Kwota przelewu nie może być większa od kwoty wypłaty. Czy przeznaczyć całą kwotę "
        u"wypłaty na przelew ?"_s;
    zmien(okno, u"txtPrzelewem"_s, u"100"_s);
    rozmowa_.spodziewaj(zaDuzo, Odpowiedz::Nie);
    zmien(okno, u"txtPrzelewem"_s, u"99999"_s);
    EXPECT_EQ(tekst(okno, u"txtPrzelewem"_s), u"100,00"_s);
    rozmowa_.spodziewaj(zaDuzo, Odpowiedz::Tak);
    zmien(okno, u"txtPrzelewem"_s, u"99999"_s);
    EXPECT_EQ(tekst(okno, u"txtPrzelewem"_s), tekst(okno, u"txtDoWyplaty"_s));

    for (const auto& [nazwa, dni] : {std::pair(u"txtDnirob"_s, u"20"_s),
                                     {u"txtSoboty"_s, u"2"_s},
                                     {u"txtNiedziele"_s, u"1"_s},
                                     {u"txtCzasnaurl"_s, u"5"_s}})
        zmien(okno, nazwa, dni);
    rozmowa_.spodziewaj(u"Uwaga! Ilość dni zapisanych nie jest zgodna z faktyczną ilością dni w miesiącu."_s,
                        Styl::Wykrzyknik);
    zmien(okno, u"txtInnewolne"_s, u"2"_s);
    zmien(okno, u"txtInnewolne"_s, u"3"_s); // 31 days of July: nothing to say
    EXPECT_EQ(tekst(okno, u"txtDniprzepr"_s), u"23"_s);
    zmien(okno, u"txtZasrodz"_s, u"4"_s);
    EXPECT_FALSE(widzet(okno, u"txtPaczkaMCS"_s).isVisibleTo(&okno)) << "constant 600 is off";
    okno.done(0);
    oczekujWPliku({1, u" "_s}, "DN_RO=20 DN_PR=23 DN_URL=5 DN_INN=3 IL_Z_RODZ=4");

    stale().MCSAkt = true;
    frmPlaceLista zMcs(otoczenie(), kLipiec, u" "_s);
    pokaz(zMcs);
    EXPECT_EQ(tekst(zMcs, u"txtWyslaneMCS"_s), u"N"_s) << "an empty mark";
    zmien(zMcs, u"txtPaczkaMCS"_s, u"12"_s);
    zmien(zMcs, u"txtWyslaneMCS"_s, u"t"_s);
    oczekujWPliku({1, u" "_s}, "PACZKA=12 WYS_MCS=T");
}

TEST_F(ListaPlacOknaTest, WierszeDoUwagiSaOznaczoneIPowiedziane) {
    lista(2);
    zmienPracownika(2, "czy_konto=T");
    const QString niePoliczony =
        u"Wiersz nie jest policzony: brutto, dodatki lub potrącenia nie wynikają z jego "
        u"składników."_s;
    const auto uwaga = [](const QWidget& okno, const QString& nazwa, int wiersz) {
        const QModelIndex indeks = widzet<WidokListy>(okno, nazwa).model()->index(wiersz, 0);
        const QString opis = indeks.data(Qt::ToolTipRole).toString();
        EXPECT_EQ(opis.isEmpty(), indeks.data(Qt::DecorationRole).value<QIcon>().isNull());
        return opis;
    };
    const auto naWierszu = [](const QWidget& okno) {
        const auto& napis = widzet<QLabel>(okno, u"labUwaga"_s);
        return napis.isVisible() ? napis.text() : QString();
    };
    {
        frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
        pokaz(okno);
        EXPECT_EQ(naWierszu(okno), QString());
        zmien(okno, u"txtPlus(5)"_s, u"100"_s);
        EXPECT_EQ(naWierszu(okno), niePoliczony);
        EXPECT_EQ(uwaga(okno, u"lvwPlace"_s, 0), niePoliczony);
        wybierz(okno, 1);
        EXPECT_EQ(naWierszu(okno) + uwaga(okno, u"lvwPlace"_s, 1), QString());
        EXPECT_FALSE(widzet(okno, u"cmdPrzelicz"_s).property("doPrzeliczenia").toBool());

        // More by transfer than to be paid, after the amount to pay has fallen.
        QTest::keyClick(&okno, Qt::Key_K, Qt::AltModifier);
        QTRY_COMPARE(tekst(okno, u"txtPrzelewem"_s), tekst(okno, u"txtDoWyplaty"_s));
        zmien(okno, u"txtUlgaPod"_s, u"0"_s);
        EXPECT_EQ(naWierszu(okno), u"Kwota przelewu jest większa od kwoty do wypłaty."_s);
        rozmowa_.spodziewaj(u"Ta lista płac wymaga uwagi.\nWiersze niepoliczone: 1 (nr 001)\n"
                            u"Przelew większy od kwoty do wypłaty: 1 (nr 002)"_s,
                            Styl::Wykrzyknik);
        okno.close();
        EXPECT_FALSE(okno.isVisible());
    }
    // Another sitting sees the same, the list of months too.
    frmPlace place(otoczenie());
    pokaz(place);
    QTRY_COMPARE(uwaga(place, u"lvwLista"_s, 0),
                 u"Wiersze niepoliczone: 1 (nr 001)\nPrzelew większy od kwoty do wypłaty: 1 (nr 002)"_s);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    EXPECT_EQ(uwaga(okno, u"lvwPlace"_s, 0), niePoliczony);
    EXPECT_TRUE(widzet(okno, u"cmdPrzelicz"_s).property("doPrzeliczenia").toBool());
    klik(okno, u"cmdPrzelicz"_s);
    EXPECT_EQ(naWierszu(okno) + uwaga(okno, u"lvwPlace"_s, 0), QString());
    // Only those whose pay goes to an account.
    widzet<QPushButton>(okno, u"cmdCalaLista"_s).menu()->actions().last()->trigger();
    EXPECT_EQ(uwaga(okno, u"lvwPlace"_s, 1), QString());
    oczekujWPliku({1, u" "_s}, "PRZELEWEM=0");
    // What was typed is not refilled unasked.
    rozmowa_.spodziewaj(u"Kwoty składników wpisane ręcznie zostaną zastąpione. Czy przepisać ?"_s,
                        Odpowiedz::Nie);
    klik(okno, u"Command1"_s);
    EXPECT_EQ(tekst(okno, u"txtPlus(5)"_s), u"100,00"_s);
    EXPECT_FALSE(widzet(okno, u"cmdPrzelicz"_s).property("doPrzeliczenia").toBool());
}

TEST_F(ListaPlacOknaTest, KlawiszeINiedokonczonyWpis) {
    lista(3);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);
    // Escape takes back what was typed and only then leaves the screen.
    QTest::keyClick(&wpisz(okno, u"txtKosztyUz"_s, u"55"_s), Qt::Key_Escape);
    EXPECT_EQ(tekst(okno, u"txtKosztyUz"_s), u"101,82"_s);
    EXPECT_TRUE(okno.isVisible());
    // Enter stores and goes on; past the last field waits the calculation.
    QTest::keyClick(&wpisz(okno, u"txtFEPC"_s, u"160"_s), Qt::Key_Return);
    oczekujWPliku({1, u" "_s}, "FEPRC=160");
    EXPECT_EQ(QApplication::focusWidget(), &widzet(okno, u"txtFRPC"_s));
    QTest::keyClick(&wejdz(okno, u"txtPrzelewem"_s), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    oczekujWPliku({1, u" "_s}, "FEPRC=161,04");
    // A row is found by its number or surname.
    QTest::keyClick(&okno, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"3"_s);
    EXPECT_EQ(widzet<QLabel>(okno, u"labPracownik"_s).text(), u"003  Nowak3 Anna"_s);
    QTest::keyClick(&okno, Qt::Key_F, Qt::ControlModifier);
    widzet<QLineEdit>(okno, u"txtSzukaj"_s).setText(u"NOWAK2"_s);
    // A mnemonic acts on the field in work without the focus leaving it.
    wpisz(okno, u"txtPlus(1)"_s, u"2000"_s);
    QTest::keyClick(&okno, Qt::Key_F9);
    oczekujWPliku({2, u" "_s}, "SP_1=2000 BRUTTO=2000");
    // Closing stores the field in work, and the sums.
    wpisz(okno, u"txtFP"_s, u"77"_s);
    okno.close();
    EXPECT_FALSE(okno.isVisible());
    oczekujWPliku({2, u" "_s}, "SKL_FP=77");
    oczekujWPliku({1, u" "_s}, "SKL_FP=40,42");
    oczekujSum(kLipiec, "il_wyplat=3 sum_brutto=5300 sum_fp=157,84");
}

TEST_F(ListaPlacOknaTest, MiesiaceNieISymbolListy) {
    stale().AktOpWieluList = true;
    lista(1);
    miesiac({2001, 8});
    frmPlace place(otoczenie());
    pokaz(place);
    EXPECT_EQ(wiersze(place, u"lvwLista"_s), (QStringList{u"07.2001|LIPIEC|"_s, u"08.2001|SIERPIEŃ|"_s}));
    // No at each question leaves all as it is.
    for (const auto& [przycisk, pytanie] :
         {std::pair(u"cmdNowy"_s, u"Czy na pewno utworzyć nową listę ?"_s),
          {u"cmdUsun"_s, u"Czy na pewno chcesz usunąć miesiąc 08-2001 z listy ?"_s},
          {u"Command1"_s, u"Czy napewno zablokować wybrany miesiąc?"_s}}) {
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
        klik(place, przycisk);
    }
    EXPECT_EQ(wiersze(place, u"lvwLista"_s).size(), 2);

    // The note is stored when its month is left, and when the screen is.
    auto& opis = widzet<QPlainTextEdit>(place, u"txtInfOpis"_s);
    opis.setFocus();
    pisz(opis, u"sierpień"_s);
    QTest::keyClick(&widzet(place, u"lvwLista"_s), Qt::Key_Up);
    EXPECT_EQ(opis.toPlainText(), QString());
    oczekujSum({2001, 8}, "inf_opis=sierpień");

    rozmowa_.spodziewaj(u"Podaj symbol listy.\n(Cancel - wszystkie)"_s, std::optional(u"Bx"_s));
    rozmowa_.spodziewaj(u"Lista o podanym symbolu nie istnieje.\nCzy chcesz ją utworzyć ?"_s, Odpowiedz::Tak);
    wOknie<frmPlaceLista>([this](frmPlaceLista& okno) {
        EXPECT_EQ(okno.windowTitle(), u"Lista plac (B) za miesiąc 07.2001"_s);
        EXPECT_FALSE(widzet(okno, u"cmdUsun"_s).isEnabled());
        EXPECT_FALSE(widzet(okno, u"cmdDrukuj"_s).isEnabled());
        rozmowa_.spodziewaj(pytania::naInnejLiscie, Styl::Wykrzyknik);
        rozmowa_.spodziewaj(pytania::dniWylaczone, Styl::Wykrzyknik);
        wybierzOsoby();
        klik(okno, u"cmdNowy"_s);
        klik(okno, u"cmdPrzelicz"_s);
    });
    klik(place, u"Command2"_s);
    EXPECT_EQ(wierszeWPliku(), "1 ,1B");
    EXPECT_EQ(tekst(place, u"txtSumBrutto"_s), u"3300,00"_s) << "the sums are those of all lists";

    blokada(kLipiec, Odpowiedz::Nie);
    rozmowa_.spodziewaj(u"Czy napewno odblokować wybrany miesiąc?"_s, Odpowiedz::Tak);
    klik(place, u"Command1"_s);
    opis.setFocus();
    pisz(opis, u"lipiec"_s);
    place.close();
    oczekujSum(kLipiec, "akc=N inf_opis=lipiec");
}

TEST_F(ListaPlacOknaTest, WyborPracownikow) {
    rozmowa_.spodziewaj(u"Brak pracowników zatrudnionych na umowę - zlecenie."_s, Styl::Informacja);
    EXPECT_EQ(frmWybPr::wybierz(otoczenie(), 1), QList<qint64>());
    EXPECT_EQ(frmWybPr::wybierz(otoczenie(), 8), QList<qint64>()) << "closes without a word";

    for (const auto& [nr, nazwisko, dzial] :
         {std::tuple(5, u"Żak"_s, "A"), {12, u"Bąk"_s, "B"}, {100, u"Ćwik"_s, "A"}, {2, u"Cis"_s, "B"}})
        pracownik(nr, std::string("dzial=") + dzial, nazwisko);
    frmWybPr okno(otoczenie(), 1);
    pokaz(okno);
    EXPECT_EQ(wiersze(okno, u"lvwWybPr"_s), (QStringList{u"012|Bąk|Anna|B"_s, u"002|Cis|Anna|B"_s,
                                                         u"100|Ćwik|Anna|A"_s, u"005|Żak|Anna|A"_s}));
    auto& lista = widzet<WidokListy>(okno, u"lvwWybPr"_s);
    for (const auto& [szukany, nr] :
         {std::pair(u"ż"_s, 5), {u"2"_s, 2}, {u"1"_s, 12}, {u"cis"_s, 2}, {u"x"_s, 2}, {u"0100"_s, 100}}) {
        widzet<QLineEdit>(okno, u"txtSzukaj"_s).setText(szukany);
        EXPECT_EQ(lista.wybrany(), nr) << szukany.toStdString();
    }
    EXPECT_EQ(okno.wybrani(), QList<qint64>{100});
    klik(okno, u"cmdDzial"_s);
    EXPECT_EQ(okno.wybrani(), (QList<qint64>{5, 100}));
    klik(okno, u"cmdWszyscy"_s);
    EXPECT_EQ(okno.wybrani(), (QList<qint64>{2, 5, 12, 100}));
    QTest::keyClick(&lista, Qt::Key_Escape);
    EXPECT_EQ(okno.result(), QDialog::Rejected);
    EXPECT_FALSE(okno.isVisible());
}

TEST_F(ListaPlacOknaTest, MiesciSieNaEkranie) {
    lista(1);
    stale().MCSAkt = true;
    const QSize ekran(1280, 800);
    frmPlace place(otoczenie());
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    frmWybPr wybor(otoczenie(), 1);
    for (QWidget* w :
         {static_cast<QWidget*>(&place), static_cast<QWidget*>(&okno), static_cast<QWidget*>(&wybor)})
        EXPECT_EQ(w->minimumSizeHint().boundedTo(ekran), w->minimumSizeHint())
            << w->objectName().toStdString();
}

} // namespace

} // namespace tornel::testy
