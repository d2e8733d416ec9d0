// Every dialog has its page of the handbook.
#include "app/frmAbout.h"
#include "app/frmLogNowy.h"
#include "app/frmLogowanie.h"
#include "app/ListaUzytkownikow.h"
#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "okna/frmInputData.h"
#include "okna/frmZakresMies.h"
#include "okna/RozmowaOkien.h"
#include "payroll/miesiace/frmSymboleList.h"
#include "payroll/nieobecnosci/frmWykazy.h"
#include "personnel/frmData.h"
#include "personnel/frmDzial.h"
#include "personnel/frmFind.h"
#include "personnel/frmKartaEw.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmRodzina.h"
#include "personnel/frmWybPr.h"
#include "personnel/frmWydrukKadr.h"
#include "personnel/Urlopy.h"
#include "rules/frmSkladnikiPlac.h"
#include "tax/frmKontrolaPIT4.h"
#include "tax/frmListaPIT4Nowy.h"
#include "tax/frmPIT8BAnaliza.h"
#include "tax/frmSeriaDeklaracji.h"
#include "wsparcie/PomocTestowa.h"
#include "zus/frmKedu.h"
#include "zus/frmUwagiKedu.h"

namespace tornel::testy {

namespace {

TEST_F(PomocOkna, KazdyDialogMaStrone) {
    ListaUzytkownikow uzytkownicy(o());
    using Dialog = std::unique_ptr<QDialog>;
    const std::function<Dialog()> dialogi[] = {
        [] { return std::make_unique<frmLogowanie>(); },
        [] { return std::make_unique<frmAbout>(); },
        [&] { return std::make_unique<frmLogNowy>(uzytkownicy); },
        [&] { return std::make_unique<frmNowyPrc>(o()); },
        [] { return std::make_unique<frmFind>([](const QString&) { return true; }); },
        [&] { return std::make_unique<frmWybPr>(o(), 1); },
        [] { return std::make_unique<frmInputData>(frmInputData::Tryb::Miesiac, u"Nowa"_s, QDate()); },
        [] { return std::make_unique<frmInputData>(frmInputData::Tryb::Data, u"Dzień"_s, QDate()); },
        [&] { return std::make_unique<frmData>(u"1"_s, RodzajeUrlopu()); },
        [&] {
            return std::make_unique<frmZakresMies>(rozmowa_, u"Zakres"_s, RokMies{2001, 1}, RokMies{2001, 3});
        },
        [] {
            return std::make_unique<frmSymboleList>(QList<SymbolListyPlac>{{u"A"_s, 1}});
        },
        [] {
            return std::make_unique<frmDzial>(QList<DzialFirmy>{{u"Biuro"_s, 1}});
        },
        [&] {
            return std::make_unique<frmWydrukKadr>(rozmowa_, PozycjaWydrukow{u"Karta"_s, CzasWydruku::Rok},
                                                   ZlecenieWydruku{{}, {2001, 1}, {2001, 12}}, u"1"_s, 1);
        },
        [&] {
            return std::make_unique<frmKartaEw>(o(), QList<Osoba>{{1, u"Adamska"_s, u"Barbara"_s, {}, false}},
                                                1, 2001, PortWydrukowKadr());
        },
        [&] { return std::make_unique<frmWybKonta>(o()); },
        [&] { return std::make_unique<frmMCS>(o(), ZrodloPrzelewow()); },
        [] {
            return std::make_unique<frmUwagiKedu>([] { return QList<UwagaKedu>(); }, frmUwagiKedu::Popraw());
        },
        [&] { return std::make_unique<frmRodzina>(o(), 11); },
        [&] { return std::make_unique<frmKedu>(rozmowa_, QString(), QString()); },
        [] { return std::make_unique<frmListaPIT4Nowy>(QDate(2001, 5, 2), frmListaPIT4Nowy::Listy::Pytaj); },
        [&] { return std::make_unique<frmKontrolaPIT4>(o(), 2001); },
        [&] { return std::make_unique<frmPIT8BAnaliza>(o(), 1, 2001); },
        [&] {
            return std::make_unique<frmSeriaDeklaracji>(
                o(), Deklaracja::Pit11, OkresPodatkowy{{2001, 1}, {2001, 3}}, QList<qint64>{1, 2},
                PortWydrukowDeklaracji(), frmSeriaDeklaracji::OtworzJedna());
        },
        [] { return std::make_unique<frmWykazPodstawL4>(QList<LiniaWykazu>(), Waluta()); },
        [] { return std::make_unique<frmWykazPodstaw>(QList<LiniaWykazu>(), 0, Waluta()); },
        [] { return std::make_unique<frmNrSkladnikaURL>(OkresUrlopu(), 0); },
    };
    for (const auto& zrob : dialogi) {
        const Dialog dialog = zrob();
        pokaz(*dialog);
        EXPECT_EQ(tematPoF1(*dialog), dialog->objectName());
    }
    // A message box has the page of messages, over whatever screen it stands.
    RozmowaOkien okienka;
    naEkranie([](QWidget& okienko) { EXPECT_EQ(tematPoF1(okienko), u"komunikaty"_s); });
    EXPECT_FALSE(okienka.pytanie(u"Usunąć ?"_s));
}

} // namespace

} // namespace tornel::testy
