// The screens of contracts driven as a hurried clerk drives them: amounts typed and left, dialogs broken off,
// filters, what is stored before it is printed.
#include "bank/frmMCS.h"
#include "common/Pliki.h"
#include "contracts/frmUmowy.h"
#include "contracts/frmUZLData.h"
#include "okna/UwagaPola.h"
#include "okna/WidokListy.h"
#include "personnel/frmData.h"
#include "personnel/frmWybPr.h"
#include "rules/Stale.h"
#include "wsparcie/Litery.h"
#include "wsparcie/UmowyTestowe.h"
#include "wsparcie/Widzet.h"
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace tornel::testy {

namespace {

using schemat::KONTA;

class UmowyOkna : public UmowyTestowe {
protected:
    frmUmowy& ekran(const QString& tabela, PortyUmow porty = {}) {
        okno_ = std::make_unique<frmUmowy>(otoczenie(), rodzaj(tabela), nullptr, std::move(porty));
        okno_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(okno_.get()));
        return *okno_;
    }
    /// A contract in the file, its fields typed.
    qint64 umowa(const QString& tabela, const QString& pola, QDate zawarta = {2001, 3, 1}) {
        Umowy umowy(otoczenie(), rodzaj(tabela));
        const qint64 id = umowy.Nowy(1, zawarta);
        EXPECT_TRUE(umowy.Wypisz(id));
        opusc(umowy, rodzaj(tabela), pola);
        umowy.Wpisz();
        return id;
    }
    template <typename T = QLineEdit>
    T& k(const QString& nazwa) {
        return widzet<T>(*okno_, nazwa);
    }
    QString tekst(const QString& nazwa) { return k(nazwa).text(); }
    void klik(QWidget& okno, const QString& nazwa) {
        QTest::mouseClick(&widzet(okno, nazwa), Qt::LeftButton);
    }
    /// Goes to the field, types over it and leaves it by Tab.
    void wpisz(const QString& nazwa, const QString& tekst) {
        QLineEdit& pole = k(nazwa);
        if (auto* karty = okno_->findChild<QTabWidget*>(u"tabUmowy"_s))
            for (int i = 0; i < karty->count(); ++i)
                if (karty->widget(i)->isAncestorOf(&pole)) karty->setCurrentIndex(i);
        // A screen under another one gets its focus back only with the next events.
        okno_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(okno_.get()));
        pole.setFocus(Qt::TabFocusReason);
        pole.selectAll();
        QTest::keyClicks(&pole, tekst);
        if (tekst.isEmpty()) QTest::keyClick(&pole, Qt::Key_Delete);
        QTest::keyClick(&pole, Qt::Key_Tab);
    }
    QStringList naLiscie(int kolumna = 0) {
        QStringList wynik;
        const QAbstractItemModel& model = *k<WidokListy>(u"lvwLista"_s).model();
        for (int i = 0; i < model.rowCount(); ++i) wynik.append(model.index(i, kolumna).data().toString());
        return wynik;
    }
    /// What the clerk does in the dialog that opens next, which is closed behind him.
    template <typename T>
    void wOknie(std::function<void(T&)> czynnosc) {
        QTimer::singleShot(0, qApp, [czynnosc] {
            const QPointer<T> okno = qobject_cast<T*>(QApplication::activeModalWidget());
            ASSERT_TRUE(okno) << "another screen is open, or none";
            czynnosc(*okno);
            if (okno && okno->isVisible()) okno->reject();
        });
    }
    void nowa(const QString& dzien) {
        wOknie<frmWybPr>([=, this](frmWybPr& wybor) {
            wOknie<frmUZLData>([=](frmUZLData& data) {
                auto& pole = widzet<QLineEdit>(data, u"dtpDataZ"_s);
                pole.setText(dzien);
                QTest::keyClick(&pole, Qt::Key_Return);
            });
            klik(wybor, u"cmdWybierz"_s);
        });
        klik(*okno_, u"cmdNowy"_s);
    }
    QStringList menu() {
        QStringList wynik;
        for (const QAction* a : k<QPushButton>(u"cmdDrukuj"_s).menu()->actions())
            wynik += a->isSeparator() ? u"-"_s : bezLitery(a->text());
        return wynik;
    }

    std::unique_ptr<frmUmowy> okno_;
};

PortyUmow wszystkiePorty(QStringList& wydane) {
    const auto jeden = [&wydane](const QString& co) {
        return [&wydane, co](const RodzajUmowy&, qint64 id, QWidget*) { wydane += co + QString::number(id); };
    };
    return {{jeden(u"umowa "_s), jeden(u"rachunek "_s),
             [&wydane](const RodzajUmowy&, const QString& tytul, const QList<qint64>& klucze, QWidget*) {
                 QStringList numery;
                 for (const qint64 nr : klucze) numery += QString::number(nr);
                 wydane += tytul + u": "_s + numery.join(u' ');
             }},
            [](const QList<Przelew>&, UkladPrzelewu) { return std::shared_ptr<const Uklad>(); }};
}

TEST_F(UmowyOkna, AContractIsMadeTypedAndStoredByClosing) {
    ekran(u"UZL"_s);
    EXPECT_EQ(okno_->windowTitle(), u"Umowy - zlecenia"_s);
    EXPECT_FALSE(k(u"txtBrutto"_s).isEnabled());
    EXPECT_FALSE(k<QPushButton>(u"cmdUsun"_s).isEnabled());
    nowa(u"07-05-2001"_s);
    EXPECT_EQ(naLiscie(), QStringList{u"07-05-2001"_s});
    EXPECT_EQ(naLiscie(1), QStringList{u"NOWAK"_s});
    EXPECT_TRUE(k<QLabel>(u"labOsoba"_s).text().startsWith(u"Anna Nowak"_s));
    wpisz(u"txtBrutto"_s, u"1 000,00 "_s); // blanks as money is written
    EXPECT_EQ(tekst(u"txtNetto"_s), u"682,84"_s);
    EXPECT_EQ(tekst(u"txtFeprc"_s), u"97,60"_s);
    wpisz(u"txtFcPrc"_s, u"0"_s);
    EXPECT_EQ(tekst(u"txtUbzdr"_s), u"64,90"_s);
    EXPECT_EQ(tekst(u"txtFeprc"_s), u"97,60"_s);
    wpisz(u"txtprzelewem"_s, u"500"_s);
    EXPECT_EQ(k<QLabel>(u"labPrzypomnienie"_s).text(), QString());
    // The wheel over a field or the offices changes nothing.
    for (const QString& nazwa : {u"txtBrutto"_s, u"cbous_id"_s}) {
        auto& pole = k<QWidget>(nazwa);
        QWheelEvent kolko(pole.rect().center(), pole.mapToGlobal(pole.rect().center()), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&pole, &kolko);
    }
    wpisz(u"txtwskpod"_s, u"19"_s);
    EXPECT_EQ(tekst(u"txtprzelewem"_s), u"0,00"_s) << "each calculation loses it, deliberately";
    EXPECT_EQ(k<QLabel>(u"labPrzypomnienie"_s).text(),
              u"Przeliczenie wyzerowało kwotę „Przelewem”: było 500,00 zł."_s);
    k<QTabWidget>(u"tabUmowy"_s).setCurrentIndex(0);
    k(u"txtuzl_nr"_s).setFocus();
    QTest::keyClicks(&k(u"txtuzl_nr"_s), u"1/01"_s); // still in the field when Escape closes
    QTest::keyClick(okno_.get(), Qt::Key_Escape);
    EXPECT_FALSE(okno_->isVisible());
    oczekuj(rodzaj(u"UZL"_s), 1, u"Brutto=1000 FcPrc=0 wskpod=19 Ubzdr=64.9 przelewem=0"_s);
    EXPECT_EQ(sesja().rsUZL.szukaj(1)->tekst(UZL("uzl_nr")), u"1/01"_s);
    EXPECT_EQ(sesja().rsUZL.szukaj(1)->tekst(UZL("us_nazwa")), u"3. Drugi Urząd Skarb"_s);
}

TEST_F(UmowyOkna, TheTabKeyNeverLosesAnAmountThatWasTypedOver) {
    umowa(u"UZL"_s, u"Brutto=1000"_s);
    ekran(u"UZL"_s);
    k<QTabWidget>(u"tabUmowy"_s).setCurrentIndex(1);
    const std::pair<QString, QString> wpisane[] = {{u"txtFeprc"_s, u"1"_s},    {u"txtFcPrc"_s, u"2"_s},
                                                   {u"txtFgsp"_s, u"3"_s},     {u"txtUbzdr"_s, u"4"_s},
                                                   {u"txtkoszt_uz"_s, u"5"_s}, {u"txtPodatek"_s, u"6"_s}};
    k(u"txtwskfeprd"_s).setFocus(Qt::TabFocusReason);
    QStringList odwiedzone;
    for (int i = 0; i < 22; ++i) {
        auto* pole = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(pole);
        odwiedzone += pole->objectName();
        for (const auto& [nazwa, tekst] : wpisane)
            if (nazwa == pole->objectName()) QTest::keyClicks(pole, tekst);
        QTest::keyClick(pole, Qt::Key_Tab);
    }
    EXPECT_EQ(odwiedzone.last(), u"txtPodatek"_s);
    for (const auto& [nazwa, wpisany] : wpisane)
        EXPECT_EQ(tekst(nazwa), wpisany + u",00"_s) << nazwa.toStdString();
    EXPECT_EQ(tekst(u"txtNetto"_s), u"922,00"_s); // 1000 - 1 - 65 - 2 - 6 - 4
}

TEST_F(UmowyOkna, WhatAFieldDoesNotTakeIsSaidBesideIt) {
    umowa(u"UZL"_s, u"Brutto=1000"_s);
    ekran(u"UZL"_s);
    wpisz(u"txtprzelewem"_s, u"682,85"_s);
    EXPECT_EQ(tekst(u"txtprzelewem"_s), u"0,00"_s);
    EXPECT_TRUE(UwagaPola::zdanie(k(u"txtprzelewem"_s)).contains(u"większy od należności netto 682,84"_s));
    wpisz(u"txtprzelewem"_s, u"682,84"_s);
    EXPECT_EQ(UwagaPola::zdanie(k(u"txtprzelewem"_s)), QString());
    wpisz(u"txtwskfp"_s, u"900000000000000"_s);
    EXPECT_EQ(tekst(u"txtwskfp"_s), u"2,45"_s);
    EXPECT_TRUE(UwagaPola::zdanie(k(u"txtwskfp"_s)).contains(u"za duża"_s));
    wpisz(u"dtpdata_wyp"_s, u"31-02-2001"_s);
    EXPECT_EQ(tekst(u"dtpdata_wyp"_s), QString());
    wpisz(u"txtBrutto"_s, u"tysiac"_s);
    EXPECT_EQ(tekst(u"txtBrutto"_s) + tekst(u"txtNetto"_s), u"0,000,00"_s);
    EXPECT_FALSE(UwagaPola::zdanie(k(u"txtBrutto"_s)).isEmpty());
}

TEST_F(UmowyOkna, ADialogBrokenOffMakesNothing) {
    ekran(u"UZL"_s);
    wOknie<frmWybPr>([](frmWybPr& wybor) { wybor.reject(); });
    klik(*okno_, u"cmdNowy"_s);
    wOknie<frmWybPr>([this](frmWybPr& wybor) {
        wOknie<frmUZLData>([](frmUZLData& data) {
            EXPECT_EQ(data.windowTitle(), u"Umowa - zlecenie"_s);
            auto& pole = widzet<QLineEdit>(data, u"dtpDataZ"_s);
            EXPECT_EQ(pole.text(), FormatDaty(QDate::currentDate()));
            pole.setText(u"wczoraj"_s);
            QTest::keyClick(&pole, Qt::Key_Return);
            EXPECT_TRUE(data.isVisible()) << "waits for a date";
            QTest::keyClick(&pole, Qt::Key_Escape);
        });
        klik(wybor, u"cmdWybierz"_s);
    });
    klik(*okno_, u"cmdNowy"_s);
    EXPECT_TRUE(naLiscie().isEmpty());

    // Nobody to choose: the mode of the picker is taken for the index of its message.
    const std::pair<QString, QString> brak[] = {
        {u"UZL"_s, u"Brak pracowników zatrudnionych na umowę o dzieło."_s}, {u"UOD"_s, {}}, {u"HON"_s, {}}};
    sesja().rsPRACPR.Znajdz(1);
    for (const auto flaga : {PRACPR("umowa_zlec"), PRACPR("umowa_o_dz"), PRACPR("honorarium")})
        sesja().rsPRACPR.ustaw(flaga, u"N"_s);
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    for (const auto& [tabela, komunikat] : brak) {
        ekran(tabela);
        if (!komunikat.isEmpty()) rozmowa_.spodziewaj(komunikat, Styl::Informacja);
        klik(*okno_, u"cmdNowy"_s);
        EXPECT_TRUE(rozmowa_.gotowa());
    }
}

TEST_F(UmowyOkna, FiltersSumsCopyAndDeletion) {
    umowa(u"HON"_s, u"hon_nr=1 Brutto=1000 data_wyp=05-03-2001"_s, {2001, 3, 1});
    umowa(u"HON"_s, u"hon_nr=2 Brutto=500"_s, {2002, 1, 10});
    umowa(u"HON"_s, u"hon_nr=3 Brutto=100"_s, {2001, 4, 1});
    ekran(u"HON"_s);
    const auto sumy = [&] { return k<QLabel>(u"labSumy"_s).text(); };
    EXPECT_EQ(naLiscie(2), (QStringList{u"1"_s, u"3"_s, u"2"_s}));
    EXPECT_EQ(sumy(), u"Na liście: 3, brutto 1600,00 zł, netto 1344,00 zł"_s);
    auto& rok = k<QComboBox>(u"cboRok"_s);
    rok.setCurrentIndex(rok.findText(u"2001"_s));
    emit rok.activated(rok.currentIndex());
    k<QCheckBox>(u"chkNiewyplacone"_s).click();
    EXPECT_EQ(naLiscie(2), QStringList{u"3"_s});
    EXPECT_EQ(sumy(), u"Na liście: 1, brutto 100,00 zł, netto 84,00 zł"_s);
    // What is typed before the filter changes is stored by it.
    wpisz(u"txtBrutto"_s, u"200"_s);
    k<QCheckBox>(u"chkNiewyplacone"_s).click();
    oczekuj(rodzaj(u"HON"_s), 3, u"Brutto=200 Netto=168"_s);
    EXPECT_EQ(sumy(), u"Na liście: 2, brutto 1200,00 zł, netto 1008,00 zł"_s);
    // A copy that the filter would hide takes it off.
    wOknie<frmUZLData>([](frmUZLData& data) {
        widzet<QLineEdit>(data, u"dtpDataZ"_s).setText(u"01-02-2002"_s);
        widzet<QPushButton>(data, u"cmdDalej"_s).click();
    });
    klik(*okno_, u"cmdKopia"_s);
    EXPECT_EQ(naLiscie().size(), 4);
    EXPECT_EQ(tekst(u"dtpdata_zaw"_s), u"01-02-2002"_s);
    EXPECT_EQ(tekst(u"txtBrutto"_s), u"200,00"_s);
    // After a deletion the first row comes up, and the freed key goes to the next contract.
    EXPECT_TRUE(k<WidokListy>(u"lvwLista"_s).wybierz(2));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczone honorarium ?"_s, Odpowiedz::Tak);
    klik(*okno_, u"cmdUsun"_s);
    EXPECT_EQ(k<WidokListy>(u"lvwLista"_s).wybrany(), 1);
    nowa(u"01-05-2001"_s);
    EXPECT_EQ(k<WidokListy>(u"lvwLista"_s).wybrany(), 2);
}

TEST_F(UmowyOkna, MenusAndWhatIsPrinted) {
    QStringList wydane;
    stale().MCSAkt = true;
    umowa(u"UZL"_s, u"Brutto=1000"_s);
    umowa(u"UZL"_s, u"Brutto=10 us_id=0"_s, {2001, 4, 1});
    ekran(u"UZL"_s, wszystkiePorty(wydane));
    EXPECT_EQ(menu(), (QStringList{u"Wydruk umowy - zlecenia"_s, u"Wydruk rachunku"_s,
                                   u"Wydruk przelewu dla pracownika"_s, u"Wydruk przelewów od ... do ..."_s,
                                   u"Wydruk przelewów dla podatku"_s, u"-"_s, u"Przelewy do MultiCash"_s,
                                   u"Wydruk listy umów"_s}));
    wpisz(u"txtBrutto"_s, u"2000"_s);
    okno_->drukuj(DrukUmow::Umowa);
    oczekuj(rodzaj(u"UZL"_s), 1, u"Brutto=2000"_s);
    okno_->drukuj(DrukUmow::Rachunek);
    EXPECT_TRUE(k<WidokListy>(u"lvwLista"_s).wybierz(2));
    rozmowa_.spodziewaj(
        u"Umowa nie ma urzędu skarbowego, więc rachunek będzie pusty. Wybierz urząd w polu „Urząd skarbowy”."_s,
        Styl::Wykrzyknik);
    okno_->drukuj(DrukUmow::Rachunek);
    okno_->drukuj(DrukUmow::Zestawienie);
    EXPECT_EQ(wydane,
              (QStringList{u"umowa 1"_s, u"rachunek 1"_s, u"rachunek 2"_s, u"Umowy - zlecenia: 1 2"_s}));

    rozmowa_.spodziewaj(u"Nie można wydrukować przelewu, ponieważ nie ustalono kwoty do przelewu."_s,
                        Styl::Wykrzyknik);
    okno_->drukuj(DrukUmow::Przelew);
    // The proposal is the present month; the contracts are of 2001.
    const auto okres = [](frmData& data) {
        const QDate dzis = QDate::currentDate();
        EXPECT_EQ(widzet<QLineEdit>(data, u"dtOd"_s).text(),
                  FormatDaty(PierwszyDzien(dzis.year(), dzis.month())));
        EXPECT_EQ(widzet<QLineEdit>(data, u"dtDo"_s).text(),
                  FormatDaty(OstatniDzien(dzis.year(), dzis.month())));
        data.accept();
    };
    for (const DrukUmow co : {DrukUmow::PrzelewyOkresu, DrukUmow::PrzelewyPodatku}) {
        wOknie<frmData>(okres);
        rozmowa_.spodziewaj(u"Brak umów - zleceń spełniających podane kryteria. Sprawdź czy podany okres "
                            u"jest prawidłowy oraz "
                            u"czy ustalono kwoty do przelewów."_s,
                            Styl::Wykrzyknik);
        okno_->drukuj(co);
    }
    ekran(u"HON"_s, wszystkiePorty(wydane));
    EXPECT_EQ(menu(), (QStringList{u"Wydruk rachunku"_s, u"Wydruk przelewu dla pracownika"_s,
                                   u"Wydruk przelewów od... do..."_s, u"Wydruk przelewów dla podatku"_s,
                                   u"Wydruk listy honorariów"_s}));
    EXPECT_EQ(okno_->findChild<QTabWidget*>(), nullptr);
    EXPECT_EQ(okno_->findChild<QWidget*>(u"cbous_id"_s), nullptr);
}

TEST_F(UmowyOkna, TheBanksFileMarksItsContractsAndAFailureMarksNone) {
    Recordset konta(KONTA);
    konta.Open(sesja().cnPlace);
    konta.AddNewZero(4);
    konta.ustaw(KONTA("konto"), u"10990001-445566"_s);
    konta.UpdateBatch(u"Dane testu");
    umowa(u"UZL"_s, u"Brutto=1000 przelewem=600 paczka=1 data_wyp=05-03-2001"_s);
    umowa(u"UZL"_s, u"Brutto=1000 przelewem=600 paczka=2 data_wyp=05-03-2001"_s);
    stale().MCSAkt = false;
    ekran(u"UZL"_s);
    EXPECT_FALSE(k(u"txtpaczka"_s).isVisible());
    EXPECT_FALSE(menu().contains(u"Przelewy do MultiCash"_s));
    stale().MCSAkt = true;
    ekran(u"UZL"_s);
    EXPECT_TRUE(k(u"txtpaczka"_s).isVisible());
    const QString katalog = folder_.filePath(u"bank"_s);
    const auto wypelnij = [&](frmMCS& okno) {
        const std::pair<QString, QString> pola[] = {{u"txtNrP"_s, u"1"_s},
                                                    {u"dtpWyst"_s, u"04-03-2001"_s},
                                                    {u"dtpPlatn"_s, u"05-03-2001"_s},
                                                    {u"txtKatalog"_s, katalog},
                                                    {u"txtSzczegoly"_s, u"umowy"_s}};
        for (const auto& [nazwa, tekst] : pola) widzet<QLineEdit>(okno, nazwa).setText(tekst);
        okno.accept();
    };
    QDir().mkpath(katalog + u"/01030401.pli"_s); // a folder stands where the file has to be
    wOknie<frmMCS>(wypelnij);
    rozmowa_.spodziewaj(u"Plik "_s + katalog + u"/01030401.pli już istnieje. Czy zastąpić podany plik ?"_s,
                        Odpowiedz::Tak);
    EXPECT_THROW(okno_->drukuj(DrukUmow::MultiCash), Blad);
    EXPECT_EQ(tekst(u"txtwys_mcs"_s), u"N"_s);
    QDir().rmdir(katalog + u"/01030401.pli"_s);
    wOknie<frmMCS>(wypelnij);
    rozmowa_.spodziewaj(u"Plik "_s + katalog + u"/01030401.pli został utworzony."_s, Styl::Informacja);
    okno_->drukuj(DrukUmow::MultiCash);
    EXPECT_EQ(CzytajPlik(katalog + u"/01030401.pli"_s).count('\n'), 1);
    EXPECT_EQ(tekst(u"txtwys_mcs"_s), u"T"_s);
    EXPECT_EQ(naLiscie(6), (QStringList{u"T"_s, QString()}));
    // The screen goes on with the marked row: no conflict with what the file got.
    wpisz(u"txtuzl_nr"_s, u"5"_s);
    QTest::keyClick(okno_.get(), Qt::Key_Escape);
    EXPECT_EQ(sesja().rsUZL.szukaj(1)->tekst(UZL("uzl_nr")), u"5"_s);
}

} // namespace

} // namespace tornel::testy
