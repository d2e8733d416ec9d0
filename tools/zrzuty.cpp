// Renders every screen on the example firm into PNG files of a folder: in its own size, and the large ones at
// 1280x800 into a folder of that name below it. With --ciemne in the dark theme.
#include "app/frmAbout.h"
#include "app/frmArchiwa.h"
#include "app/frmDziennik.h"
#include "app/frmHaslo.h"
#include "app/frmInform.h"
#include "app/frmLogLista.h"
#include "app/frmLogNowy.h"
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "app/frmMainUmowyOPrace.h"
#include "app/frmMainWydrukiKadr.h"
#include "app/frmOstatnieBazy.h"
#include "app/frmRaport.h"
#include "app/frmSplash.h"
#include "app/frmWyglad.h"
#include "bank/frmKonta.h"
#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "contracts/frmUmowy.h"
#include "contracts/frmUZLData.h"
#include "druk/Wyjscie.h"
#include "okna/Aplikacja.h"
#include "okna/frmInputData.h"
#include "okna/frmPodglad.h"
#include "okna/frmPytania.h"
#include "okna/frmZakresMies.h"
#include "okna/Pomoc.h"
#include "okna/RozmowaOkien.h"
#include "okna/UwagaPola.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "payroll/lista/frmPlaceLista.h"
#include "payroll/miesiace/frmPlace.h"
#include "payroll/miesiace/frmSymboleList.h"
#include "payroll/nadgodziny/frmNadg.h"
#include "payroll/nieobecnosci/frmWykazy.h"
#include "personnel/frmData.h"
#include "personnel/frmDniWolne.h"
#include "personnel/frmDniWolnePr.h"
#include "personnel/frmDzial.h"
#include "personnel/frmFind.h"
#include "personnel/frmKartaEw.h"
#include "personnel/frmMPRACY.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmPrac.h"
#include "personnel/frmRejUrl.h"
#include "personnel/frmRejZwoln.h"
#include "personnel/frmRodzina.h"
#include "personnel/frmTrDoPr.h"
#include "personnel/frmUmoP.h"
#include "personnel/frmUS.h"
#include "personnel/frmWybPr.h"
#include "personnel/frmWydrukKadr.h"
#include "personnel/Kalendarz.h"
#include "personnel/Urlopy.h"
#include "reports/place/WydrukiListyPlac.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "rules/CofanieCzynnosci.h"
#include "rules/frmSkladnikiPlac.h"
#include "rules/frmStaleProgramu.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "start/Uzytkownicy.h"
#include "store/KopiaPliku.h"
#include "tax/frmDeklaracjaRoczna.h"
#include "tax/frmKontrolaPIT4.h"
#include "tax/frmListaPIT4.h"
#include "tax/frmListaPIT4Nowy.h"
#include "tax/frmPIT8BAnaliza.h"
#include "tax/frmSeriaDeklaracji.h"
#include "zus/frmKedu.h"
#include "zus/frmListaDRA.h"
#include "zus/frmUwagiKedu.h"
#include "zus/frmWydrukiZUS.h"
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

using namespace tornel::app;

namespace {

constexpr QSize kMalyPulpit{1280, 800};

void zapisz(QWidget& okno, const QString& sciezka) {
    okno.show();
    for (int i = 0; i < 3; ++i) Aplikacja::processEvents(); // what scrolls is laid out in turns
    if (!okno.grab().save(sciezka)) qFatal("cannot write %s", qPrintable(sciezka));
}

class Zrzuty {
public:
    explicit Zrzuty(const QString& folder) : folder_(folder) {
        if (!folder_.mkpath(QStringLiteral("1280x800")))
            qFatal("cannot make the folder %s", qPrintable(folder));
    }

    /// The first page of a print; without a width, as the handbook shows it.
    void wydruk(const Uklad& uklad, const QString& nazwa, int szerokosc = 0) const {
        if (szerokosc == 0) szerokosc = uklad.opis().strona.poziomo ? 700 : 600;
        const double rozdzielczosc = szerokosc / uklad.opis().strona.szer() * 25.4;
        QImage obraz(szerokosc, static_cast<int>(uklad.opis().strona.wys() / 25.4 * rozdzielczosc),
                     QImage::Format_RGB32);
        obraz.fill(Qt::white);
        QPainter malarz(&obraz);
        MalujStrone(malarz, rozdzielczosc, uklad, 0);
        malarz.end();
        if (!obraz.convertToFormat(QImage::Format_Grayscale8).save(plik(nazwa)))
            qFatal("cannot write %s", qPrintable(plik(nazwa)));
    }

    void dialog(QWidget& okno, const QString& nazwa) const { zapisz(okno, plik(nazwa)); }

    /// One picture for each tab, in both sizes.
    void ekran(QWidget& okno, const QString& nazwa) const {
        karty(okno, nazwa);
        okno.resize(kMalyPulpit);
        karty(okno, QStringLiteral("1280x800/") + nazwa);
    }

private:
    [[nodiscard]] QString plik(const QString& nazwa) const {
        return folder_.filePath(nazwa + QStringLiteral(".png"));
    }
    void karty(QWidget& okno, const QString& nazwa) const {
        if (auto* zakladki = okno.findChild<QTabWidget*>())
            kolejne(okno, nazwa, zakladki->count(), [&](int nr) { zakladki->setCurrentIndex(nr); });
        else if (auto* lista = okno.findChild<QListWidget*>())
            kolejne(okno, nazwa, lista->count(), [&](int nr) { lista->setCurrentRow(nr); });
        else
            zapisz(okno, plik(nazwa));
    }
    template <typename Pokaz>
    void kolejne(QWidget& okno, const QString& nazwa, int ile, Pokaz pokaz) const {
        for (int i = 0; i < ile; ++i) {
            pokaz(i);
            zapisz(okno, plik(QStringLiteral("%1-%2").arg(nazwa).arg(i + 1, 2, 10, QLatin1Char('0'))));
        }
    }

    QDir folder_;
};

void kadryIUstawienia(const Zrzuty& zrzuty, Otoczenie& o) {
    PortyStalych porty;
    porty.otworzUrzedy = [] {}; // its button looks as it does in the program
    frmStaleProgramu stale(o, porty);
    zrzuty.ekran(stale, QStringLiteral("stale"));
    frmSkladnikiPlac skladniki(o);
    zrzuty.ekran(skladniki, QStringLiteral("skladniki"));
    frmPrac prac(o, FiltrPracownikow::Wszyscy, nullptr, WydrukiKartoteki(o));
    zrzuty.ekran(prac, QStringLiteral("pracownicy"));
    prac.findChild<QTabWidget*>()->setCurrentIndex(2);
    auto* placa = prac.findChild<QLineEdit*>(QStringLiteral("txtPlaca_zas"));
    UwagaPola::ustaw(*placa, QStringLiteral("„1.500” może znaczyć tysiące albo ułamek. Przyjęto 0,00. "
                                            "Ctrl+Z przywraca 1800,00."));
    prac.findChild<QLineEdit*>(QStringLiteral("txtSzukaj"))->setText(QStringLiteral("a"));
    zrzuty.dialog(prac, QStringLiteral("pole-nie-zrozumialo"));
    frmPytania pytania(QStringLiteral("Przelicz wszystkich"),
                       {{QStringLiteral("Czy wyliczyć dni przepracowane ?")},
                        {QStringLiteral("Czy pomniejszyć kwotę do wypłaty pracownika o zasiłek chorobowy ?")},
                        {QStringLiteral("Czy doliczyć nadgodziny ?"), 1}});
    zrzuty.dialog(pytania, QStringLiteral("pytania"));
    frmPrac nikt(o, FiltrPracownikow::Honoraria);
    zrzuty.dialog(nikt, QStringLiteral("pracownicy-pusta"));
    frmNowyPrc nowyPrc(o);
    zrzuty.dialog(nowyPrc, QStringLiteral("nowy-pracownik"));
    frmFind szukanie([](const QString&) { return false; });
    zrzuty.dialog(szukanie, QStringLiteral("szukanie"));
    frmUS urzedy(o);
    zrzuty.ekran(urzedy, QStringLiteral("urzedy"));
    frmMPRACY miejsca(o);
    zrzuty.ekran(miejsca, QStringLiteral("adresy-dzialalnosci"));
    frmKonta konta(o);
    zrzuty.ekran(konta, QStringLiteral("konta"));
}

void uzytkownicy(const Zrzuty& zrzuty, Otoczenie& o) {
    ListaUzytkownikow lista(o);
    (void)lista.Nowy(QStringLiteral("Kadrowa"), QStringLiteral("tajne"), QStringLiteral("tajne"));
    frmLogLista ekran(o);
    zrzuty.ekran(ekran, QStringLiteral("uzytkownicy"));
    frmLogNowy nowy(lista);
    zrzuty.dialog(nowy, QStringLiteral("nowy-uzytkownik"));
    frmHaslo haslo(o);
    zrzuty.dialog(haslo, QStringLiteral("haslo"));
}

void place(const Zrzuty& zrzuty, Otoczenie& o) {
    {
        frmPlace place(o);
        zrzuty.ekran(place, QStringLiteral("miesiace"));
    }
    {
        frmPlaceLista lista(o, {2001, 3}, QStringLiteral(" "));
        zrzuty.ekran(lista, QStringLiteral("lista-plac"));
        lista.findChild<QTabWidget*>()->setCurrentIndex(0);
        lista.resize(1880, 1000);
        zrzuty.dialog(lista, QStringLiteral("lista-plac-szeroka"));
    }
    {
        frmPlaceLista zablokowana(o, {2001, 1}, QStringLiteral("A"));
        zrzuty.ekran(zablokowana, QStringLiteral("lista-zablokowana"));
    }
    frmWybPr wybor(o, 1);
    zrzuty.dialog(wybor, QStringLiteral("wybor-pracownika"));
    frmInputData miesiac(frmInputData::Tryb::Miesiac, QStringLiteral("Nowy miesiąc"), QDate(2001, 4, 1));
    zrzuty.dialog(miesiac, QStringLiteral("miesiac"));
    frmInputData dzien(frmInputData::Tryb::Data, QStringLiteral("Data"), QDate(2001, 4, 1));
    zrzuty.dialog(dzien, QStringLiteral("data"));
}

/// Transfers, the bank's file, and pages of prints.
void przelewy(const Zrzuty& zrzuty, Otoczenie& o) {
    ListaPlac lista(o, 2001, 3, QStringLiteral(" "));
    frmWybKonta konto(o);
    zrzuty.dialog(konto, QStringLiteral("konto"));
    frmWybKonta przelewy(o, nullptr,
                         PytanieOPrzelewy{QStringLiteral("przelewy: 5, razem 7250,00 zł"),
                                          QStringLiteral("wydrukowano 3 z 5, ostatnio 10-04-2001"), true});
    zrzuty.dialog(przelewy, QStringLiteral("konto-przelewow"));
    frmMCS mcs(o, {});
    zrzuty.dialog(mcs, QStringLiteral("multicash"));
    const auto wyplaty = Wyplaty(o).zListy(QStringLiteral(" "));
    const auto zlecenia = Przelewy(o).PrzelewPracownika(wyplaty, 1, QStringLiteral("Wynagrodzenie 03.2001"));
    const auto uklad = tornel::reports::UlozPrzelewy(zlecenia, UkladPrzelewu::Przelew);
    frmPodglad podglad(uklad, o.rozmowa);
    zrzuty.ekran(podglad, QStringLiteral("podglad-przelewow"));
    zrzuty.wydruk(*uklad, QStringLiteral("wydruk-przelew"));
    const QDate dzien(2001, 4, 2);
    zrzuty.wydruk(*tornel::reports::UlozWydrukListy(tornel::reports::WydrukListy::ListaPlac, o, lista, dzien),
                  QStringLiteral("wydruk-lista-plac-duzy"), 1170);
    for (const tornel::reports::OpisWydrukuListy& w : tornel::reports::wydrukiListy())
        zrzuty.wydruk(*tornel::reports::UlozWydrukListy(w.ktory, o, lista, dzien),
                      QStringLiteral("wydruk-") + w.nazwa.toString());
}

void umowy(const Zrzuty& zrzuty, Otoczenie& o) {
    for (const RodzajUmowy& rodzaj : RodzajeUmow()) {
        const EkranUmow& opis = EkranRodzaju(rodzaj);
        o.stale.MCSAkt = true;
        frmUmowy ekran(o, rodzaj, nullptr, {.wydruki = {}, .przelewy = tornel::reports::UlozPrzelewy});
        zrzuty.ekran(ekran, opis.nazwa.toString());
        if (auto* karty = ekran.findChild<QTabWidget*>(QStringLiteral("tabUmowy"))) {
            karty->setCurrentIndex(1);
            zrzuty.ekran(ekran, opis.nazwa.toString() + QStringLiteral("-skladki"));
        }
    }
    frmUmoP oPrace(o, nullptr, DrukiUmowOPrace(o));
    oPrace.findChild<WidokListy*>()->wybierz(3); // a change that the personnel file does not know yet
    zrzuty.ekran(oPrace, QStringLiteral("umowy-o-prace-zmiana"));
    oPrace.findChild<WidokListy*>()->wybierz(12); // ended by notice
    zrzuty.ekran(oPrace, QStringLiteral("umowy-o-prace"));
    frmUZLData data(RodzajeUmow().front());
    zrzuty.dialog(data, QStringLiteral("frmUZLData"));
}

/// The declarations on paper.
void pokazDeklaracje(const Zrzuty& zrzuty, Otoczenie& o) {
    for (int mies = 1; mies <= 3; ++mies) (void)Pit4(o).Nowy({{2001, mies}, 0}, {}, {2001, 4, 20});
    PortWydrukowDeklaracji port;
    port.drukuj = [](const WierszDeklaracji&, int, QWidget*) {};
    port.drukujSerie = [](const SeriaStron&, QWidget*) {};
    port.doPdf = [](const SeriaStron&, const QString&) {};
    frmListaPIT4 pit4(o, port);
    zrzuty.ekran(pit4, QStringLiteral("pit4"));
    frmListaPIT4Nowy nowa({2001, 4, 2}, frmListaPIT4Nowy::Listy::Pytaj);
    zrzuty.dialog(nowa, QStringLiteral("pit4-nowa"));
    frmKontrolaPIT4 kontrola(o, 2001);
    zrzuty.ekran(kontrola, QStringLiteral("pit4-kontrola"));
    const OkresPodatkowy rok{{2001, 1}, {2001, 12}};
    for (const Deklaracja ktora : {Deklaracja::Pit11, Deklaracja::Pit40, Deklaracja::Pit8B}) {
        frmDeklaracjaRoczna okno(o, ktora, 3, rok, port);
        zrzuty.ekran(okno, okno.objectName());
    }
    QList<qint64> osoby;
    for (const Osoba& osoba : Pracownicy(o).doWyboru(1)) osoby.append(osoba.prcId);
    frmSeriaDeklaracji seria(o, Deklaracja::Pit11, rok, osoby, port, {});
    zrzuty.ekran(seria, QStringLiteral("pit11-seria"));
    frmPIT8BAnaliza analiza(o, 2, 2001);
    zrzuty.ekran(analiza, QStringLiteral("pit8b-analiza"));
}

void nieobecnosci(const Zrzuty& zrzuty, Otoczenie& o) {
    for (const int prcId : {3, 8})
        for (const int mies : {4, 5})
            (void)Kalendarz(o).Nowy_dniwolne({prcId, 2001, mies}, Swieta::Zaznaczone);
    frmDniWolne ogolne(o);
    zrzuty.ekran(ogolne, QStringLiteral("dni-wolne"));
    frmDniWolnePr pracownikow(o);
    zrzuty.ekran(pracownikow, QStringLiteral("dni-wolne-pracownikow"));
    frmTrDoPr transport(o);
    zrzuty.ekran(transport, QStringLiteral("transport"));
    frmRejUrl urlopy(o);
    zrzuty.ekran(urlopy, QStringLiteral("urlopy"));
    frmRejZwoln zwolnienia(o);
    zrzuty.ekran(zwolnienia, QStringLiteral("zwolnienia"));
    frmData zakres(QStringLiteral("1  Adamska Barbara"), RodzajeUrlopu());
    zrzuty.dialog(zakres, QStringLiteral("zakres-dat"));
    frmNadg nadgodziny(o);
    zrzuty.ekran(nadgodziny, QStringLiteral("nadgodziny"));

    const auto zl = [](int kwota) { return Waluta::zlotych(kwota); };
    const QList<LiniaWykazu> miesiace{{QStringLiteral("2001 Luty"), zl(2880), zl(2341)},
                                      {QStringLiteral("2001 Styczeń"), zl(2640), zl(2146)},
                                      {QStringLiteral("2000 Grudzień"), zl(2880), zl(2341)}};
    frmWykazPodstawL4 wykazL4(miesiace, zl(2800));
    zrzuty.dialog(wykazL4, QStringLiteral("wykaz-l4"));
    frmWykazPodstaw wykaz(miesiace, 61, zl(137));
    zrzuty.dialog(wykaz, QStringLiteral("wykaz-urlop"));
    frmNrSkladnikaURL nrSkladnika({{2001, 3, 1}, {2001, 3, 6}, zl(548)}, 3);
    zrzuty.dialog(nrSkladnika, QStringLiteral("numer-skladnika"));
}

/// What is asked before the prints, and the attendance card.
void wydruki(const Zrzuty& zrzuty, Otoczenie& o) {
    frmZakresMies zakres(o.rozmowa, QStringLiteral("Zbiorówka za rok"), {2001, 1}, {2001, 3});
    zrzuty.dialog(zakres, QStringLiteral("zakres-miesiecy"));
    frmSymboleList symbole(SymboleList(o.sesja, {{2001, 1}, {2001, 2}, {2001, 3}}));
    zrzuty.dialog(symbole, QStringLiteral("symbole-list"));
    frmDzial dzialy(Pracownicy(o).dzialy());
    zrzuty.dialog(dzialy, QStringLiteral("dzialy"));
    const PortWydrukowKadr port = WydrukiKartoteki(o);
    for (const PozycjaWydrukow& w : port.dostepne) {
        if (w.okres == CzasWydruku::Zaden) continue;
        frmWydrukKadr okno(o.rozmowa, w, {{}, {2001, 1}, {2001, 3}}, QStringLiteral("002  Bielak Jan"), 12);
        zrzuty.dialog(okno, QStringLiteral("wydruk-kadr-%1").arg(static_cast<int>(w.okres)));
    }
    const QList<Osoba> osoby = Pracownicy(o).lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska);
    frmKartaEw karta(o, osoby, 2, 2001, port);
    zrzuty.ekran(karta, QStringLiteral("karta-ewidencji"));
}

/// The insurer's documents: the choice, the remarks, and a collection of all of them.
void zus(const Zrzuty& zrzuty, Otoczenie& o) {
    ZamowienieKedu zamowienie{.plik =
                                  QFileInfo(o.sesja.cnPlace.sciezka()).path() + QStringLiteral("/firma.kdu"),
                              .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
    for (const DokumentKedu& d : DokumentyKedu()) {
        zamowienie.wybor.ustaw(d.kod, 1);
        if (d.petla == Petla::Raport)
            zamowienie.raporty[d.kod] = {{2001, 3}, DomyslnyIdentyfikator({2001, 3})};
    }
    frmRodzina rodzina(o, 11);
    zrzuty.ekran(rodzina, QStringLiteral("rodzina"));
    (void)RozliczeniaDRA(o).Nowe({2001, 3}, {}, {2001, 4, 5});
    frmListaDRA dra(o, [](QWidget*) {});
    dra.findChild<QPushButton*>(QStringLiteral("cmdKontrola"))->click();
    zrzuty.ekran(dra, QStringLiteral("dra"));
    const QList<UwagaKedu> uwagi = SprawdzKedu(o, zamowienie);
    tornel::zus::frmUwagiKedu okno([&] { return uwagi; }, [](const UwagaKedu&, QWidget*) {});
    zrzuty.dialog(okno, QStringLiteral("uwagi-kedu"));
    class BezSlowa : public RozmowaOkien {
        void komunikat(const QString&, Styl, const QString&) override {}
    } milczaca;
    Otoczenie poCichu{o.sesja, o.stale, o.skladniki, milczaca};
    (void)ZbiorKedu(poCichu, zamowienie).StworzPlik();
    PortKedu port;
    port.pokaz = [](const QString&, QWidget*) {};
    o.stale.WydrukiZUS = QStringLiteral("100001000011010");
    frmWydrukiZUS wydruki(o, port);
    zrzuty.ekran(wydruki, QStringLiteral("wydruki-zus"));
    frmKedu kolekcja(o.rozmowa, {}, zamowienie.plik);
    auto* drzewo = kolekcja.findChild<QTreeView*>();
    drzewo->expand(drzewo->model()->index(2, 0, drzewo->model()->index(0, 0)));
    zrzuty.ekran(kolekcja, QStringLiteral("kolekcja"));
}

/// The file as a whole: archives, other databases, the structure.
void bezpieczenstwo(const Zrzuty& zrzuty, Otoczenie& o, const QString& plik) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(QStringLiteral("ARCH2001_07_31"));
    KopiujOtwarta(o.sesja.cnPlace, folder.filePath(QStringLiteral("ARCH2001_07_31/Tornel.mdb")));
    frmArchiwa archiwa(o.rozmowa, folder.path(), plik);
    zrzuty.ekran(archiwa, QStringLiteral("archiwa"));
    frmOstatnieBazy bazy({plik, QStringLiteral("/home/place/Filia.mdb")});
    zrzuty.dialog(bazy, QStringLiteral("ostatnie-bazy"));
    frmInform inform;
    zrzuty.dialog(inform, QStringLiteral("aktualizer"));
    frmRaport raport(
        QStringLiteral("/home/place/Aktua.log"),
        QStringLiteral("RAPORT Z AKTUALIZACJI BAZY DANYCH\n\nEXECUTE> ALTER TABLE US ADD NIP TEXT(13);\n"
                       "\nKONIEC PLIKU"));
    zrzuty.dialog(raport, QStringLiteral("raport"));
}

/// A short morning's work as the journal shows it.
void dziennik(const Zrzuty& zrzuty, Otoczenie& o) {
    QDateTime teraz({2001, 4, 2}, {8, 12, 40});
    o.sesja.cnPlace.dziennik()->UstawZegar([&teraz] { return teraz = teraz.addSecs(427); });
    o.sesja.cnPlace.dziennik()->dopiszZdarzenie(QStringLiteral("Logowanie"));
    (void)o.sesja.UstawPracownika(3);
    o.sesja.rsPRACPR.ustaw(schemat::PRACPR("placa_zas"), Waluta::zlotych(1980));
    o.sesja.rsPRACPR.ustaw(schemat::PRACPR("stanow"), QStringLiteral("starszy referent"));
    o.sesja.rsPRACPR.UpdateBatch(u"Zmiana danych pracownika nr 3");
    o.sesja.rsKONTA.Open(o.sesja.cnPlace);
    o.sesja.rsKONTA.MoveFirst();
    o.sesja.rsKONTA.ustaw(schemat::KONTA("Nazwa"), QStringLiteral("Bank Ziemi Radomskiej II Oddział"));
    o.sesja.rsKONTA.UpdateBatch(u"Konta bankowe: zmiana pozycji nr 1");
    (void)CofnijLubPonow(o, {}, Kierunek::Cofnij);
    frmDziennik ekran(o);
    if (auto* lista = ekran.findChild<WidokListy*>(QStringLiteral("lvwWpisy")))
        lista->wybierz(lista->lista().id(2));
    zrzuty.ekran(ekran, QStringLiteral("dziennik"));
}

/// The handbook as F1 opens it over a screen.
void pomoc(const Zrzuty& zrzuty, Pomoc& podrecznik, QWidget& okno) {
    podrecznik.pokazSpis(okno);
    if (auto* ekran = okno.findChild<QDialog*>(QStringLiteral("frmPomoc")))
        zrzuty.dialog(*ekran, QStringLiteral("pomoc"));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir ustawienia; // what the desktop remembers of the windows is not looked at
    // A desktop on which every window has the size that it was made with.
    QFile ekran(ustawienia.filePath(QStringLiteral("ekran.json")));
    if (!ekran.open(QIODevice::WriteOnly)) return 1;
    ekran.write(
        R"({"screens": [{"name": "ekran", "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96,
                    "logicalBaseDpi": 96, "dpr": 1}]})");
    ekran.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + ekran.fileName().toUtf8());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ustawienia.path());
    Aplikacja aplikacja(argc, argv);
    QStringList argumenty = Aplikacja::arguments();
    zapamietajMotyw(argumenty.removeOne(QStringLiteral("--ciemne")) ? WyborMotywu::Ciemny
                                                                    : WyborMotywu::Jasny);
    Wyglad::zastosuj(aplikacja);
    const Zrzuty zrzuty(argumenty.value(1, QStringLiteral("zrzuty")));

    const QTemporaryDir baza;
    const QString plik = baza.filePath(QStringLiteral("Tornel.mdb"));
    UtworzPrzyklad(plik);
    RozmowaOkien rozmowa;
    Program program(plik, baza.path(), rozmowa);
    (void)SprawdzLogin(program.sesja(), QStringLiteral("Admin"), {});
    Otoczenie& o = program.otoczenie();

    frmSplash powitanie;
    zrzuty.dialog(powitanie, QStringLiteral("powitanie"));
    frmLogowanie logowanie;
    zrzuty.dialog(logowanie, QStringLiteral("logowanie"));
    Pomoc podrecznik(QDir(Aplikacja::applicationDirPath()).filePath(QStringLiteral("Help.hlp")), rozmowa);
    frmMain glowne(o);
    ZarejestrujEkrany(glowne, o);
    glowne.rejestruj(Wejscie::Pomoc, [&] { podrecznik.pokazSpis(glowne); });
    glowne.wczytaj();
    zrzuty.ekran(glowne, QStringLiteral("okno-glowne"));
    frmWyglad wyglad;
    zrzuty.dialog(wyglad, QStringLiteral("wyglad"));
    frmAbout oProgramie;
    zrzuty.dialog(oProgramie, QStringLiteral("o-programie"));
    kadryIUstawienia(zrzuty, o);
    uzytkownicy(zrzuty, o);
    place(zrzuty, o);
    przelewy(zrzuty, o);
    umowy(zrzuty, o);
    pokazDeklaracje(zrzuty, o);
    nieobecnosci(zrzuty, o);
    wydruki(zrzuty, o);
    bezpieczenstwo(zrzuty, o, plik);
    zus(zrzuty, o);
    dziennik(zrzuty, o);
    pomoc(zrzuty, podrecznik, glowne);
    return 0;
}
