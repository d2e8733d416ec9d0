// Transfers and the bank's file from the payroll list: one document for all, marks and notes only for what
// left the program, nothing twice without the clerk knowing.
#include "app/frmMainWydrukiListy.h"
#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "druk/Tabela.h"
#include "okna/Drukowanie.h"
#include "okna/frmPodglad.h"
#include "reports/place/WydrukiListyPlac.h"
#include "rules/Stale.h"
#include "wsparcie/Litery.h"
#include "wsparcie/OknaPlacTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <QBuffer>
#include <QCheckBox>
#include <QPdfWriter>
#include <QPrinterInfo>

namespace tornel::testy {

namespace {

using schemat::KONTA;
using schemat::PLA;
using schemat::PRZELEW;
using schemat::US;

const QString kDzis = FormatDaty(QDate::currentDate());
const QString kTytul = u"Szczegóły płatności:"_s;

class PrzelewyOkna : public OknaPlacTestowe {
protected:
    /// A list of employees 1 to 3 with amounts by transfer, an account of the firm and a tax office.
    void przygotuj() {
        lista(3, kPracownik + " konto=10990001-120045-27006-11 us_id=1");
        for (int nr = 1; nr <= 3; ++nr) przelewem(nr, 100 * nr);
        Recordset konta(KONTA), urzedy(US);
        konta.Open(sesja().cnPlace);
        konta.AddNewZero(4);
        konta.ustaw(KONTA("skrot"), u"Bieżące"_s);
        konta.ustaw(KONTA("konto"), u"10990001-445566"_s);
        konta.UpdateBatch(u"Dane testu");
        urzedy.Open(sesja().cnPlace);
        urzedy.AddNewZero(1);
        urzedy.ustaw(US("Nazwa"), u"Urząd Skarbowy"_s);
        urzedy.UpdateBatch(u"Dane testu");
    }
    void przelewem(qint64 prcId, double kwota) {
        const OtwartyMiesiac miesiac(sesja(), {2001, 7});
        Recordset& pla = sesja().rsPLA;
        ASSERT_TRUE(pla.Find({PLA("PRC_ID"), Kryterium::Operator::Rowne, prcId}));
        pla.ustaw(PLA("PRZELEWEM"), zl(kwota));
        pla.UpdateBatch(u"Dane testu");
    }
    std::unique_ptr<frmPlaceLista> ekran() {
        auto okno = std::make_unique<frmPlaceLista>(otoczenie(), RokMies{2001, 7}, u" "_s, nullptr,
                                                    app::wydrukiListyPlac(otoczenie()));
        pokaz(*okno);
        return okno;
    }
    static QAction& wejscieMenu(const QWidget& okno, const QString& napis) {
        for (QAction* a : widzet<QPushButton>(okno, u"cmdDrukuj"_s).menu()->actions())
            if (bezLitery(a->text()) == napis) return *a;
        throw std::runtime_error("no entry " + napis.toStdString());
    }
    void drukuj(const QWidget& okno, const QString& napis) { wejscieMenu(okno, napis).trigger(); }

    /// In the dialog of the account, what it says of earlier prints; then the preview with this many pages,
    /// saved as PDF unless `plik` is empty.
    void przezPodglad(const QString& wykonane, int stron, const QString& plik, bool pomin = false) {
        wOknie<frmWybKonta>([=, this](frmWybKonta& wybor) {
            auto* lab = wybor.findChild<QLabel*>(u"labWykonane"_s);
            EXPECT_EQ(lab ? lab->text() : QString(), wykonane);
            auto* chkPomin = wybor.findChild<QCheckBox*>(u"chkPomin"_s);
            EXPECT_TRUE(!pomin || chkPomin);
            if (pomin && chkPomin) chkPomin->setChecked(true);
            wOknie<frmPodglad>([=](frmPodglad& podglad) {
                EXPECT_EQ(widzet<QSpinBox>(podglad, u"numStrona"_s).maximum(), stron);
                EXPECT_EQ(podglad.windowTitle(), u"Przelew 1,2 z 4"_s);
                if (!plik.isEmpty()) EXPECT_TRUE(podglad.zapiszPdf(plik));
            });
            klik(wybor, u"cmdWybierz"_s);
        });
    }
    [[nodiscard]] QList<Wykonanie> zapamietane(const RodzajWykonania& rodzaj) {
        return Wykonane(sesja()).szukaj({.rodzaj = rodzaj.kod.toString(), .miesiac = RokMies{2001, 7}});
    }
    [[nodiscard]] QString plik(const QString& nazwa) const { return folder_.filePath(nazwa); }

    int otwarcie_ = 0;
};

TEST_F(PrzelewyOkna, NothingToPayAndNoAccountAreTold) {
    przygotuj();
    przelewem(1, 0);
    auto okno = ekran();
    rozmowa_.spodziewaj(u"Nie można wydrukować przelewu, ponieważ nie ustalono kwoty do przelewu."_s,
                        Styl::Wykrzyknik);
    drukuj(*okno, u"Wydruk przelewu dla pracownika"_s);
    Recordset konta(KONTA);
    konta.Open(sesja().cnPlace);
    konta.MoveFirst();
    konta.Delete();
    konta.UpdateBatch(u"Dane testu");
    rozmowa_.spodziewaj(u"Brak zdefiniowanych kont bankowych"_s, Styl::Informacja);
    drukuj(*okno, u"Wydruk wszystkich przelewów"_s);
    EXPECT_TRUE(zapamietane(wykonanie::Przelew).isEmpty());
}

TEST_F(PrzelewyOkna, APrintedListIsNotedAndReceiptsAreNot) {
    przygotuj();
    auto okno = ekran();
    for (const QString& napis : {u"Lista płac"_s, u"Pokwitowania"_s}) {
        wOknie<frmPodglad>([&](frmPodglad& podglad) {
            EXPECT_TRUE(zapamietane(reports::kWydrukListy).isEmpty() || napis != u"Lista płac"_s);
            EXPECT_TRUE(podglad.zapiszPdf(plik(napis + u".pdf"_s)));
        });
        drukuj(*okno, napis);
    }
    const QList<Wykonanie> wydruki = zapamietane(reports::kWydrukListy);
    ASSERT_EQ(wydruki.size(), 1);
    EXPECT_EQ(wydruki.first().opis, u"Lista płac"_s);
    EXPECT_EQ(wydruki.first().lista, QString()) << "of all lists";
}

TEST_F(PrzelewyOkna, ABatchIsOneDocumentAndWhatWasMadeIsSaidBeforeItIsMadeAgain) {
    przygotuj();
    auto okno = ekran();
    // Looked at only: nothing was made.
    rozmowa_.spodziewaj(kTytul, u"płaca"_s, u"Przelew"_s);
    przezPodglad({}, 3, {});
    drukuj(*okno, u"Wydruk wszystkich przelewów"_s);
    EXPECT_TRUE(zapamietane(wykonanie::Przelew).isEmpty());

    rozmowa_.spodziewaj(kTytul, u"płaca"_s);
    przezPodglad({}, 1, plik(u"jeden.pdf"_s));
    drukuj(*okno, u"Wydruk przelewu dla pracownika"_s);
    ASSERT_EQ(zapamietane(wykonanie::Przelew).size(), 1);
    EXPECT_EQ(zapamietane(wykonanie::Przelew).first().kwota, zl(100));

    rozmowa_.spodziewaj(kTytul, u"płaca"_s);
    przezPodglad(u"wydrukowano 1 z 3, ostatnio "_s + kDzis, 2, plik(u"reszta.pdf"_s), true);
    drukuj(*okno, u"Wydruk wszystkich przelewów"_s);
    QList<qint64> komu;
    for (const Wykonanie& w : zapamietane(wykonanie::Przelew)) komu += w.komu;
    EXPECT_EQ(komu, (QList<qint64>{1, 2, 3}));

    rozmowa_.spodziewaj(kTytul, std::optional<QString>()); // given up at the title
    wOknie<frmWybKonta>([this](frmWybKonta& wybor) {
        EXPECT_EQ(widzet<QLabel>(wybor, u"labWykonane"_s).text(), u"wydrukowano "_s + kDzis);
        EXPECT_EQ(widzet<QLabel>(wybor, u"labIle"_s).text(), u"przelewy: 3, razem 600,00 zł"_s);
        klik(wybor, u"cmdWybierz"_s);
    });
    drukuj(*okno, u"Wydruk wszystkich przelewów"_s);

    Recordset przelew(PRZELEW);
    przelew.Open(sesja().cnPlace);
    EXPECT_EQ(przelew.RecordCount(), 1) << "one record is kept";
    przelew.MoveFirst();
    EXPECT_EQ(przelew.kwota(PRZELEW("Kwota")), zl(300));
    EXPECT_EQ(przelew.tekst(PRZELEW("Tytulem")), u"PŁACA"_s);
}

TEST_F(PrzelewyOkna, TheTaxOfOfficesHasItsTitle) {
    przygotuj();
    auto okno = ekran();
    przezPodglad({}, 1, plik(u"podatek.pdf"_s));
    drukuj(*okno, u"Wydruk przelewu dla podatku"_s);
    ASSERT_EQ(zapamietane(wykonanie::PrzelewPodatku).size(), 1);
    EXPECT_EQ(zapamietane(wykonanie::PrzelewPodatku).first().plik, plik(u"podatek.pdf"_s));
    przezPodglad(u"wydrukowano "_s + kDzis, 1, {});
    drukuj(*okno, u"Wydruk przelewu dla podatku"_s);
    EXPECT_EQ(zapamietane(wykonanie::PrzelewPodatku).size(), 1);
}

TEST_F(PrzelewyOkna, WithoutPreviewThereIsOneQuestionAndAPrinterThatFailsLeavesNothing) {
    przygotuj();
    stale().DrukPrzel = true;
    auto okno = ekran();
    QList<Odpowiedz> odpowiedzi{Odpowiedz::Nie};
    // Where there is a printer, nobody wants the test's paper.
    if (QPrinterInfo::defaultPrinter().isNull()) odpowiedzi += Odpowiedz::Tak;
    for (const Odpowiedz odpowiedz : odpowiedzi) {
        rozmowa_.spodziewaj(kTytul, u"płaca"_s);
        rozmowa_.spodziewaj(u"Czy na pewno drukować ?"_s, odpowiedz);
        if (odpowiedz == Odpowiedz::Tak)
            rozmowa_.spodziewaj(u"Nie ma żadnej drukarki. Wydruk można obejrzeć i zapisać jako PDF, gdy "
                                "stała programu nie każe drukować bez podglądu."_s,
                                Styl::Krytyczny);
        wOknie<frmWybKonta>([this](frmWybKonta& wybor) { klik(wybor, u"cmdWybierz"_s); });
        drukuj(*okno, u"Wydruk wszystkich przelewów"_s);
    }
    EXPECT_TRUE(zapamietane(wykonanie::Przelew).isEmpty());
}

TEST_F(PrzelewyOkna, TheBanksFileIsMadeOnceAndMarksItsRows) {
    przygotuj();
    EXPECT_FALSE(wejscieMenu(*ekran(), u"Przelewy do MultiCash"_s).isEnabled());
    stale().MCSAkt = true;
    stale().MCSPath = folder_.path();
    auto okno = ekran();
    const QString pli = plik(QDate::currentDate().toString(u"yyMMdd"_s) + u"00.pli"_s);
    const auto utworz = [&](const QString& zlecenia, const QString& wykonane) {
        wOknie<frmMCS>([=, this](frmMCS& mcs) {
            EXPECT_EQ(widzet<QLabel>(mcs, u"labZlecenia"_s).text(), zlecenia);
            EXPECT_EQ(widzet<QLabel>(mcs, u"labWykonane"_s).text(), wykonane);
            EXPECT_EQ(tekst(mcs, u"txtSkrot"_s), u"Bieżące"_s);
            pisz(widzet(mcs, u"txtSzczegoly"_s), u"płaca"_s);
            klik(mcs, u"cmdUtworz"_s);
        });
        drukuj(*okno, u"Przelewy do MultiCash"_s);
    };
    rozmowa_.spodziewaj(u"Plik "_s + pli + u" został utworzony."_s, Styl::Informacja);
    utworz(u"zlecenia: 3, razem 600,00 zł"_s, {});
    const QByteArray bajty = CzytajPlik(pli);
    EXPECT_EQ(bajty.count("\r\n"), 3);
    EXPECT_EQ(tekst(*okno, u"txtWyslaneMCS"_s), u"T"_s);
    ASSERT_EQ(zapamietane(wykonanie::MultiCash).size(), 1);
    EXPECT_EQ(zapamietane(wykonanie::MultiCash).first().kwota, zl(600));
    EXPECT_TRUE(zapamietane(wykonanie::MultiCashWToku).isEmpty());

    rozmowa_.spodziewaj(u"Plik "_s + pli + u" już istnieje. Czy zastąpić podany plik ?"_s, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Brak danych spełniających podane kryteria"_s, Styl::Wykrzyknik);
    utworz(u"brak zleceń w tej paczce"_s, u"zapisano "_s + kDzis);
    EXPECT_EQ(CzytajPlik(pli), bajty);

    // A paper order for the same money: said before it is printed.
    rozmowa_.spodziewaj(kTytul, u"płaca"_s);
    przezPodglad(u"wysłano do banku w pliku"_s, 1, {});
    drukuj(*okno, u"Wydruk przelewu dla pracownika"_s);
}

TEST_F(PrzelewyOkna, TheRunsFieldsWaitForWhatTheyNeed) {
    przygotuj();
    stale().MCSPath = folder_.path();
    sesja().OtworzMiesiac(2001, 7, otwarcie_);
    frmMCS okno(otoczenie(), {}, nullptr, [this](QWidget*, const QString& wstepny) {
        EXPECT_EQ(wstepny, u"/nie/ma"_s);
        return folder_.path();
    });
    pokaz(okno);
    const struct {
        QString pole, tekst;
    } przypadki[] = {{u"txtNrP"_s, u"x"_s},
                     {u"txtNrP"_s, u"-1"_s},
                     {u"dtpWyst"_s, u"31-02-2001"_s},
                     {u"dtpPlatn"_s, {}},
                     {u"txtKatalog"_s, u"/nie/ma"_s}};
    for (const auto& p : przypadki) {
        auto& pole = widzet<QLineEdit>(okno, p.pole);
        const QString dobry = pole.text();
        pole.setText(p.tekst);
        klik(okno, u"cmdUtworz"_s);
        EXPECT_TRUE(okno.isVisible()) << p.pole.toStdString();
        EXPECT_EQ(okno.focusWidget(), &pole);
        if (p.pole == u"txtKatalog"_s)
            klik(okno, u"cmdKatalog"_s);
        else
            pole.setText(dobry);
    }
    EXPECT_EQ(tekst(okno, u"txtKatalog"_s), folder_.path());
    klik(okno, u"cmdUtworz"_s);
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(okno.przebieg().konto, u"10990001-445566"_s);
    EXPECT_EQ(okno.przebieg().wystawienie, QDate::currentDate());
}

TEST_F(PrzelewyOkna, TheFormChosenLastIsProposedNextTime) {
    przygotuj();
    const PytanieOPrzelewy pytanie{u"1"_s, {}, false};
    for (const auto& [przedtem, wybrany] :
         {std::pair(UkladPrzelewu::Przelew, 2), {UkladPrzelewu::Oryginal, 0}}) {
        frmWybKonta okno(otoczenie(), nullptr, pytanie);
        pokaz(okno);
        EXPECT_EQ(okno.uklad(), przedtem);
        widzet<QComboBox>(okno, u"cboUklad"_s).setCurrentIndex(wybrany);
        klik(okno, u"cmdWybierz"_s);
    }
}

/// A device that has room for so many pages.
class UrwanaDrukarka : public QPdfWriter {
public:
    UrwanaDrukarka(QIODevice& cel, int stron) : QPdfWriter(&cel), zostalo_(stron) {}
    bool newPage() override { return --zostalo_ > 0 && QPdfWriter::newPage(); }

private:
    int zostalo_;
};

TEST_F(PrzelewyOkna, APrinterThatFailsInTheMiddleIsNotTakenForOneThatPrinted) {
    OpisWydruku opis{.nazwa = u"x"_s, .tytul = u"X"_s};
    opis.arkusze = {{{.rola = Rola::Wiersz, .wys = 200, .elementy = {}}}};
    const Uklad uklad(opis, std::make_shared<WierszeWPamieci>(QList<QList<Wartosc>>(3, {Wartosc(Null)})));
    const auto rysuj = [&](int miejsca, int zatrzymajPo) {
        QBuffer bufor;
        EXPECT_TRUE(bufor.open(QIODevice::WriteOnly));
        UrwanaDrukarka drukarka(bufor, miejsca);
        return RysujStrony(drukarka, 720, uklad, 1, 3, [&](int s) { return s < zatrzymajPo; });
    };
    EXPECT_EQ(rysuj(3, 9), WynikStron::Gotowe);
    EXPECT_EQ(rysuj(2, 9), WynikStron::Niepowodzenie);
    EXPECT_EQ(rysuj(3, 2), WynikStron::Zatrzymane);
}

} // namespace

} // namespace tornel::testy
