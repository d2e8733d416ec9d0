#include "druk/Wyjscie.h"
#include "okna/MenuListy.h"
#include "okna/Okno.h"
#include "okna/PoleSzukania.h"
#include "okna/WidokListy.h"
#include "wsparcie/Litery.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSplitter>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

TEST(ListaModelOknaTest, PrzechodziSprawdzianModeliIOtwieraDziesiecTysiecyWierszy) {
    WidokListy widok({{u"NR"_s, Qt::AlignRight}, {u"NAZWISKO"_s}}, {20, 80});
    ListaModel& model = widok.lista();
    const QAbstractItemModelTester sprawdzian(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy wybrano(&widok, &WidokListy::wybrano);
    QSignalSpy wejscie(&widok, &WidokListy::wejscie);
    widok.resize(300, 400);
    widok.show();

    widok.ustaw({});
    EXPECT_EQ(widok.wybrany(), -1);
    EXPECT_EQ(wybrano.count(), 0);
    QList<WierszListy> wiersze;
    for (int i = 0; i < 10'000; ++i) wiersze.append({20'000 - i, {QString::number(i), u"Nowak"_s}});
    wiersze[3].teksty = {u"3"_s}; // a row with fewer texts than columns
    widok.ustaw(wiersze, 12'345);
    EXPECT_EQ(widok.wybrany(), 12'345);
    EXPECT_EQ(wybrano.count(), 1);
    EXPECT_EQ(model.data(model.index(7'655, 0), Qt::DisplayRole).toString(), u"7655"_s);
    EXPECT_EQ(model.data(model.index(0, 0), Qt::TextAlignmentRole).toInt(),
              Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(widok.columnWidth(0), widok.viewport()->width() / 5);

    model.zmien(12'345, {u"x"_s, u"Kowal"_s});
    EXPECT_EQ(model.index(model.wiersz(12'345), 1).data().toString(), u"Kowal"_s);
    EXPECT_EQ(model.id(10'000), -1);
    QTest::keyClick(&widok, Qt::Key_Down);
    QTest::keyClick(&widok, Qt::Key_Return);
    ASSERT_EQ(wejscie.count(), 1);
    EXPECT_EQ(wejscie.at(0).at(0).toLongLong(), 12'344);
    widok.ustaw(wiersze.mid(0, 2), 12'345);
    EXPECT_EQ(widok.wybrany(), 20'000) << "a row that is gone gives way to the first";
}

/// Names, amounts and dates, in an order that is none of theirs.
QList<WierszListy> mieszane() {
    return {{1, {u"Żak"_s, u"-1,50"_s, u"01-07-2001"_s}},
            {2, {u"łoś"_s, u"1200,00"_s, u"31-12-2000"_s}},
            {3, {u"Lis"_s, u"99,00"_s, QString()}},
            {4, {u"Ćwik"_s, u"99,00"_s, u"02-01-2001"_s}},
            {5, {u"Cwik"_s, u"(brak)"_s, u"15/06/2001"_s}}};
}

QList<KolumnaListy> kolumnyMieszane() {
    return {{u"NAZWISKO"_s}, {u"KWOTA"_s, Qt::AlignRight}, {u"DATA"_s, Qt::AlignLeft, Porzadek::Data}};
}

QList<qint64> kolejnosc(WidokListy& widok) {
    QList<qint64> wynik;
    for (int i = 0; i < widok.lista().rowCount(); ++i) wynik.append(widok.lista().id(i));
    return wynik;
}

TEST(ListaModelOknaTest, SortujeKazdaKolumneWedlugTresciAWybranyZostaje) {
    WidokListy widok(kolumnyMieszane(), {50, 25, 25});
    const QAbstractItemModelTester sprawdzian(&widok.lista(),
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
    widok.setSelectionMode(QAbstractItemView::ExtendedSelection);
    widok.ustaw(mieszane(), 3);
    widok.selectionModel()->select({widok.lista().index(0, 0), widok.lista().index(0, 2)},
                                   QItemSelectionModel::Select);
    QSignalSpy wybrano(&widok, &WidokListy::wybrano);
    const struct {
        Qt::Key klawisz;
        QList<qint64> kolejnosc;
    } kroki[] = {
        {Qt::Key_1, {5, 4, 3, 2, 1}},                               // C, Ć, L, Ł, Ż whatever the case
        {Qt::Key_1, {1, 2, 3, 4, 5}}, {Qt::Key_1, {1, 2, 3, 4, 5}}, // as given
        {Qt::Key_2, {5, 1, 3, 4, 2}}, // equal ones as given, what is no number first
        {Qt::Key_2, {2, 3, 4, 1, 5}}, {Qt::Key_3, {3, 2, 4, 5, 1}},
        {Qt::Key_4, {3, 2, 4, 5, 1}}, // no such column
    };
    for (const auto& [klawisz, oczekiwana] : kroki) {
        QTest::keyClick(&widok, klawisz, Qt::ControlModifier);
        EXPECT_EQ(kolejnosc(widok), oczekiwana) << klawisz;
        EXPECT_EQ(widok.wybrany(), 3);
        EXPECT_EQ(widok.zaznaczeni(), (QList<qint64>{1, 3}));
    }
    EXPECT_EQ(wybrano.count(), 0) << "the same row is no other one";
    EXPECT_EQ(widok.sasiad(4), 5);
    EXPECT_EQ(widok.sasiad(1), 5) << "behind the last the one above";

    widok.ustaw(mieszane().mid(0, 4), 4);
    EXPECT_EQ(kolejnosc(widok), (QList<qint64>{3, 2, 4, 1})) << "the order outlives new rows";
    EXPECT_EQ(widok.zaznaczeni(), (QList<qint64>{1, 3, 4}));
    QTest::keyClick(&widok, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&widok, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              u"NAZWISKO\tKWOTA\tDATA\nLis\t99,00\t\nłoś\t1200,00\t31-12-2000\nĆwik\t99,00\t02-01-2001\n"
              u"Żak\t-1,50\t01-07-2001\n"_s);
}

TEST(ListaModelOknaTest, FiltrPokazujeTylkoPasujaceIUstepujeWybranemu) {
    WidokListy widok({{u"NR"_s, Qt::AlignRight}, {u"NAZWISKO"_s}}, {20, 80});
    const QAbstractItemModelTester sprawdzian(&widok.lista(),
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
    PoleSzukania szukaj(widok, 0, 1);
    QList<WierszListy> wiersze;
    for (const auto& [nr, nazwisko] :
         {std::pair(2, u"Nowak"_s), {12, u"Nowakowska"_s}, {20, u"Lis"_s}, {121, u"Kos"_s}})
        wiersze.append({nr, {u"%1"_s.arg(nr, 3, 10, QLatin1Char('0')), nazwisko}});
    widok.ustaw(wiersze, 20);
    QSignalSpy wybrano(&widok, &WidokListy::wybrano);
    const struct {
        QString tekst, wynik;
        QList<qint64> widac;
        qint64 wybrany;
    } kroki[] = {
        {u"n"_s, u"2 z 4"_s, {2, 12}, 2},
        {u"nowakow"_s, u"1 z 4"_s, {12}, 12},
        {u"nowax"_s, u"nie znaleziono"_s, {12}, 12},
        {u"2"_s, u"2 z 4"_s, {2, 20}, 2},
        {u"012"_s, u"2 z 4"_s, {12, 121}, 12},
        {u"os"_s, u"1 z 4"_s, {121}, 121},
        {u" "_s, QString(), {2, 12, 20, 121}, 121},
    };
    for (const auto& k : kroki) {
        szukaj.setText(k.tekst);
        EXPECT_EQ(szukaj.wynik(), k.wynik) << k.tekst.toStdString();
        EXPECT_EQ(kolejnosc(widok), k.widac) << k.tekst.toStdString();
        EXPECT_EQ(widok.wybrany(), k.wybrany) << k.tekst.toStdString();
    }
    szukaj.setText(u"lis"_s);
    wybrano.clear();
    wiersze.append({5, {u"005"_s, u"Żak"_s}});
    widok.ustaw(wiersze, 20);
    EXPECT_EQ(kolejnosc(widok), QList<qint64>{20}) << "new rows go through the filter";
    EXPECT_TRUE(widok.wybierz(5)) << "a row that the filter hides";
    EXPECT_EQ(kolejnosc(widok).size(), 5);
    EXPECT_EQ(szukaj.text() + szukaj.wynik(), QString());
    EXPECT_EQ(wybrano.last().at(0).toLongLong(), 5);
    EXPECT_FALSE(widok.wybierz(99));
}

TEST(ListaModelOknaTest, KolkoMyszyZmieniaTylkoPoleWPracy) {
    QDialog okno;
    auto* uklad = new QVBoxLayout(&okno);
    auto* wybor = new QComboBox;
    wybor->addItems({u"a"_s, u"b"_s});
    auto* rok = new QSpinBox;
    for (QWidget* w : {static_cast<QWidget*>(wybor), static_cast<QWidget*>(rok)}) uklad->addWidget(w);
    rok->setValue(5);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    const auto kreci = [](QWidget& nad) {
        QWheelEvent kolko(QPointF(2, 2), nad.mapToGlobal(QPointF(2, 2)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&nad, &kolko);
    };
    wybor->setFocus();
    kreci(*rok);
    EXPECT_EQ(rok->value(), 5);
    kreci(*wybor);
    EXPECT_EQ(wybor->currentIndex(), 1);
    rok->setFocus();
    kreci(*wybor);
    kreci(*rok);
    EXPECT_EQ(wybor->currentIndex(), 1);
    EXPECT_EQ(rok->value(), 4);
}

/// A list and nothing else.
class OknoProbne : public Okno {
public:
    OknoProbne() : Okno(u"oknoProbne"_s), lista(new WidokListy(kolumnyMieszane(), {50, 25, 25})) {
        lista->setObjectName(u"lista"_s);
        lista->ustaw(mieszane());
        podzial = dzielnik(lista, 200, new QWidget);
        (new QVBoxLayout(this))->addWidget(podzial);
        resize(640, 480);
        show();
    }
    WidokListy* lista;
    QSplitter* podzial;
};

TEST(OknoTest, PamietaRozmiarPodzialKolumnyIPorzadek) {
    {
        OknoProbne okno;
        EXPECT_EQ(okno.size(), QSize(640, 480));
        EXPECT_NEAR(okno.podzial->sizes().first(), 200, 5);
        okno.resize(700, 500);
        okno.podzial->setSizes({300, 380});
        okno.lista->ustawUdzialy({30, 30, 40});
        okno.lista->sortuj(0, Qt::DescendingOrder);
        okno.lista->ustawUkladKolumn({2, -2, 0});
        okno.reject();
    }
    OknoProbne okno;
    EXPECT_EQ(okno.size(), QSize(700, 500));
    EXPECT_NEAR(okno.podzial->sizes().first(), 300, 5);
    EXPECT_EQ(okno.lista->udzialy(), (QList<int>{30, 30, 40}));
    EXPECT_EQ(kolejnosc(*okno.lista), (QList<qint64>{1, 2, 3, 4, 5}));
    EXPECT_EQ(okno.lista->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(okno.lista->ukladKolumn(), (QList<int>{2, -2, 0}));
}

QAction* pozycja(const QMenu& menu, const QString& napis) {
    for (QAction* a : menu.actions())
        if (bezLitery(a->text()) == napis) return a;
    ADD_FAILURE() << "no entry " << napis.toStdString();
    return nullptr;
}

TEST(MenuListyOknaTest, KolumnySieUkrywaPrzestawiaIZostajeOstatnia) {
    OknoProbne okno;
    WidokListy& lista = *okno.lista;
    for (const QList<int>& zly : {QList<int>{0, 1}, {0, 0, 1}, {0, 1, 3}, {-1, -2, -3}}) {
        lista.ustawUkladKolumn(zly);
        EXPECT_EQ(lista.ukladKolumn(), (QList<int>{0, 1, 2}));
    }
    lista.header()->moveSection(2, 0);
    MenuKolumn kolumny(lista);
    pozycja(kolumny, u"KWOTA"_s)->trigger();
    EXPECT_EQ(lista.widoczneKolumny(), (QList<int>{2, 0}));
    EXPECT_EQ(lista.columnWidth(2) + lista.columnWidth(0), lista.viewport()->width())
        << "the columns left share the width";
    lista.wybierz(2);
    EXPECT_EQ(lista.zaznaczoneJakoTekst(), u"DATA\tNAZWISKO\n31-12-2000\tłoś\n"_s);

    pozycja(kolumny, u"NAZWISKO"_s)->trigger();
    EXPECT_FALSE(pozycja(MenuKolumn(lista), u"DATA"_s)->isEnabled());
    lista.pokazKolumne(2, false);
    EXPECT_EQ(lista.widoczneKolumny(), QList<int>{2}) << "one column has to stay";
}

TEST(MenuListyOknaTest, MaPoleceniaPrzyciskowSwojegoOkna) {
    OknoProbne okno;
    okno.lista->setSelectionMode(QAbstractItemView::ExtendedSelection);
    int nacisniec = 0;
    const auto dodaj = [&](const QString& nazwa, const QString& napis) {
        auto* p = new QPushButton(napis);
        p->setObjectName(nazwa);
        okno.layout()->addWidget(p);
        p->show();
        QObject::connect(p, &QPushButton::clicked, &okno, [&] { ++nacisniec; });
        return p;
    };
    dodaj(u"cmdUsun"_s, u"&Usuń"_s);
    dodaj(u"cmdNowy"_s, u"&Nowy"_s)->setEnabled(false);
    dodaj(u"cmdFolder"_s, u"..."_s);
    dodaj(u"cmdSkryty"_s, u"Niewidoczny"_s)->hide();
    auto* drukuj = dodaj(u"cmdDrukuj"_s, u"&Drukuj"_s);
    auto* wydruki = new QMenu(&okno);
    wydruki->addAction(u"Karta"_s);
    drukuj->setMenu(wydruki);

    MenuListy menu(*okno.lista);
    QStringList napisy;
    for (const QAction* a : menu.actions()) napisy.append(a->isSeparator() ? u"-"_s : bezLitery(a->text()));
    EXPECT_EQ(napisy, (QStringList{u"Usuń"_s, u"Nowy"_s, u"Drukuj"_s, u"-"_s, u"Kopiuj wiersze"_s,
                                   u"Zaznacz wszystko"_s, u"Zapisz listę jako CSV..."_s, u"Drukuj listę..."_s,
                                   u"Kolumny"_s}));
    pozycja(menu, u"Nowy"_s)->trigger();
    EXPECT_EQ(nacisniec, 0) << "as able as its button";
    pozycja(menu, u"Usuń"_s)->trigger();
    EXPECT_EQ(nacisniec, 1);
    EXPECT_EQ(pozycja(menu, u"Drukuj"_s)->menu(), wydruki);
    okno.lista->ustaw({});
    EXPECT_FALSE(pozycja(MenuListy(*okno.lista), u"Drukuj listę..."_s)->isEnabled());
}

TEST(MenuListyOknaTest, NaPapierIDoPlikuIdzieToCoWidac) {
    OknoProbne okno;
    okno.setWindowTitle(u"Próba[*]"_s);
    WidokListy& lista = *okno.lista;
    lista.sortuj(1, Qt::DescendingOrder);
    lista.ustawUkladKolumn({1, 0, -3});
    lista.filtruj([](const WierszListy& w) { return w.teksty.at(0) != u"Lis"_s; });
    const auto uklad = UlozListe(lista);
    EXPECT_EQ(QString::fromUtf8(CsvWydruku(*uklad)),
              u"KWOTA;NAZWISKO\n1200,00;łoś\n99,00;Ćwik\n-1,50;Żak\n(brak);Cwik\n"_s);
    const QString papier = TekstWydruku(*uklad);
    for (const QString& tekst : {u"Próba"_s, u"wierszy: 4"_s, u"KWOTA"_s, u"1200,00"_s})
        EXPECT_TRUE(papier.contains(tekst)) << tekst.toStdString();
    EXPECT_FALSE(papier.contains(u"Lis"_s));
}

} // namespace

} // namespace tornel::testy
