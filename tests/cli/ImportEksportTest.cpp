// CSV both ways: every table of the schema comes back as it was, and a bad file changes nothing.
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

using ImportEksportTest = KonsolaTestowa;

/// Values that a CSV file could lose: separators, quotes, line breaks, blanks at the ends, ends of ranges.
Wartosc trudnaWartosc(const KolumnaDef& kolumna, int wiersz) {
    static const QString teksty[] = {QStringLiteral("; \"Zażółć\"\r\ngęślą, jaźń"), QStringLiteral(" x "),
                                     QStringLiteral("\"")};
    const auto i = static_cast<std::size_t>(wiersz);
    const auto [min, maks] = zakresTypu(kolumna.typ);
    switch (kolumna.typ) {
    case Typ::Text:
    case Typ::Char:
        return teksty[i].left(kolumna.rozmiar);
    case Typ::Memo:
        return teksty[i] + QStringLiteral("\n\nkoniec\n");
    case Typ::Date:
        return std::array<Wartosc, 3>{QDate(2000, 2, 29), Null, QDate(1899, 12, 31)}[i];
    case Typ::Currency:
        return std::array{Waluta::zSurowej(min), Waluta::zSurowej(-1), Waluta::zSurowej(123'4500)}[i];
    case Typ::Double:
    case Typ::Single:
        return std::array{0.1, -2.5e-7, 1e21}[i];
    default:
        return std::array<qint64, 3>{min, maks, 0}[i];
    }
}

/// A key like no other, the same in all tables whose rows belong together.
Wartosc kluczWiersza(const KolumnaDef& kolumna, int wiersz) {
    if (kolumna.typ == Typ::Date) return QDate(2001, 2, 1 + wiersz);
    if (kolumna.typ == Typ::Text || kolumna.typ == Typ::Char)
        return QString::number(3001 + wiersz).right(std::min(kolumna.rozmiar, 4));
    return static_cast<qint64>(30000 + wiersz);
}

void wypelnij(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa) {
    Recordset rs(tabela);
    rs.Open(polaczenie, nazwa);
    for (int wiersz = 0; wiersz < 3; ++wiersz) {
        rs.AddNewZero();
        for (int i = 0; i < static_cast<int>(tabela.kolumny.size()); ++i) {
            const Kolumna k = tabela.nr(i);
            const bool kluczowa = k.def().wymagana || std::any_of(tabela.klucz.begin(), tabela.klucz.end(),
                                                                  [&](std::string_view n) {
                                                                      return teSameNazwy(n, k.def().nazwa);
                                                                  });
            rs.ustaw(k, kluczowa ? kluczWiersza(k.def(), wiersz) : trudnaWartosc(k.def(), wiersz));
        }
    }
    rs.UpdateBatch(u"Dane testu");
}

TEST_F(ImportEksportTest, EveryTableComesBackAsItWas) {
    // The month's rows first: they change the sums of its header.
    QList<std::pair<const TabelaDef*, QString>> tabele;
    for (const TabelaDef* t : schemat::TabeleMiesiaca)
        tabele.append({t, Sesja::nazwaMiesiaca(t->nazwa, 2001, 2)});
    for (const TabelaDef* t : schemat::Tabele)
        if (t != &schemat::DZIENNIK && t != &schemat::DZIENNIK_ZMIANY) // nobody's to import
            tabele.append({t, QString::fromLatin1(t->nazwa.data(), static_cast<qsizetype>(t->nazwa.size()))});
    const auto nadgodziny = {std::pair{&schemat::NADGN, QStringLiteral("NADGN200105")},
                             std::pair{&schemat::NADGDzien, QStringLiteral("NADG200105")}};
    for (const auto& [t, nazwa] : nadgodziny) tabele.append({t, nazwa});

    const QString nowa = plik("nowa.mdb");
    ASSERT_EQ(uruchom({QStringLiteral("nowa-baza"), nowa}).status, 0);
    ASSERT_EQ(uruchom({QStringLiteral("--baza"), nowa, QStringLiteral("--tak"), QStringLiteral("miesiac"),
                       QStringLiteral("nowy"), QStringLiteral("2001-02")})
                  .status,
              0);
    for (const QString& baza : {plik("Tornel.mdb"), nowa}) {
        Polaczenie polaczenie(baza, Polaczenie::Sposob::Istniejaca);
        for (const auto& [t, nazwa] : nadgodziny) UtworzTabele(polaczenie, *t, nazwa);
        if (baza != nowa)
            for (const auto& [t, nazwa] : tabele) wypelnij(polaczenie, *t, nazwa);
    }
    const auto naNowej = [&](const QStringList& argumenty) {
        return uruchom(QStringList{QStringLiteral("--baza"), nowa} + argumenty);
    };
    for (const auto& [t, nazwa] : tabele) {
        SCOPED_TRACE(nazwa.toStdString());
        const QString csv = plik("tabela.csv");
        ASSERT_EQ(uruchom({QStringLiteral("eksport"), nazwa, csv}).status, 0);
        const Wynik import = naNowej({QStringLiteral("import"), nazwa.toLower(), csv});
        EXPECT_EQ(import.status, 0) << import.bledy.toStdString();
    }
    for (const auto& [t, nazwa] : tabele) {
        SCOPED_TRACE(nazwa.toStdString());
        const QString eksport = naNowej({QStringLiteral("eksport"), nazwa}).wyjscie;
        EXPECT_EQ(eksport, tabela(nazwa.toUtf8().constData()));
        EXPECT_GE(eksport.count(QLatin1Char('\n')), 4);
        Recordset tu(*t), tam(*t);
        Polaczenie a(plik("Tornel.mdb"), Polaczenie::Sposob::Istniejaca),
            b(nowa, Polaczenie::Sposob::Istniejaca);
        for (auto [rs, baza] : {std::pair{&tu, &a}, std::pair{&tam, &b}}) {
            rs->Open(*baza, nazwa);
            rs->Sort({t->nr(0), t->nr(1)});
            rs->MoveFirst();
        }
        ASSERT_EQ(tu.RecordCount(), tam.RecordCount());
        for (; !tu.EOF_(); tu.MoveNext(), tam.MoveNext())
            for (int i = 0; i < static_cast<int>(t->kolumny.size()); ++i)
                EXPECT_EQ(tu.wartosc(t->nr(i)), tam.wartosc(t->nr(i)))
                    << t->kolumny[static_cast<std::size_t>(i)].nazwa;
    }
}

TEST_F(ImportEksportTest, TheMonthsSumsFollowImportedRows) {
    zapisz("pla.csv", "PRC_ID;LISTA;BRUTTO;DO_WYPLATY\n1; ;1000,50;800\n2; ;500;400\n");
    ASSERT_EQ(uruchom("--tak miesiac nowy 2001-04").status, 0);
    for (int i = 0; i < 2; ++i) // the second time nothing is added twice
        ASSERT_EQ(uruchom({QStringLiteral("import"), QStringLiteral("PLA200104"), plik("pla.csv")}).status,
                  0);
    Sesja sesja(plik("Tornel.mdb"));
    ASSERT_TRUE(sesja.ZnajdzMiesiac(RokMies{2001, 4}));
    EXPECT_EQ(sesja.rsPLACE.kwota(schemat::PLACE("sum_brutto")), Waluta::zLiczby(1500.5));
    EXPECT_EQ(sesja.rsPLACE.kwota(schemat::PLACE("do_wyplaty")), Waluta::zLiczby(1200));
    EXPECT_EQ(sesja.rsPLACE.liczba(schemat::PLACE("il_wyplat")), 2);
}

TEST_F(ImportEksportTest, RowsWithTheKeyChangeAndOthersAreAdded) {
    // A byte order mark, any order and case of columns, blanks around numbers, empty fields, an empty line.
    zapisz("a.csv", "\xEF\xBB\xBFNAZ ; prc_id;DATA_UR;il_dzieci\r\n"
                    "Nowak-Bielak; 2 ;;\r\n"
                    "\r\n"
                    "\"Kot; \"\"K\"\"\";40;05-03-1970;2");
    const Wynik wynik = uruchom({QStringLiteral("import"), QStringLiteral("PRACDP"), plik("a.csv")});
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.wyjscie, QStringLiteral("Tabela PRACDP: wiersze dodane 1, zmienione 1.\n"));
    Sesja sesja(plik("Tornel.mdb"));
    const auto& dp = sesja.rsPRACDP;
    ASSERT_TRUE(sesja.UstawPracownika(2));
    EXPECT_EQ(dp.tekst(schemat::PRACDP("Naz")), QStringLiteral("Nowak-Bielak"));
    EXPECT_EQ(dp.tekst(schemat::PRACDP("Imie_1")), QStringLiteral("Jan")) << "a column left out stays";
    EXPECT_TRUE(dp.jestNull(schemat::PRACDP("data_ur")));
    EXPECT_EQ(dp.liczba(schemat::PRACDP("il_dzieci")), 0);
    ASSERT_TRUE(sesja.UstawPracownika(40)) << "the other personnel tables got their record too";
    EXPECT_EQ(dp.tekst(schemat::PRACDP("Naz")), QStringLiteral("Kot; \"K\""));
    EXPECT_EQ(dp.data(schemat::PRACDP("data_ur")), QDate(1970, 3, 5));
    EXPECT_TRUE(dp.jestNull(schemat::PRACDP("dowod_dn")));
    // ... with the defaults of a new employee, or nothing would be paid and withheld right.
    EXPECT_EQ(sesja.rsPRACZUS.kwota(schemat::PRACZUS("wsk_fe")), Waluta::zLiczby(9.76));
    EXPECT_EQ(sesja.rsPRACZUS.tekst(schemat::PRACZUS("podlega_fe")), QStringLiteral("N"));
    EXPECT_EQ(sesja.rsPRACPR.tekst(schemat::PRACPR("Zwoln")), QStringLiteral("N"));
    EXPECT_NE(sesja.rsPRACSK.liczba(schemat::PRACSK("dod")), 0);
}

TEST_F(ImportEksportTest, ARowAddedToAMonthGetsItsFourRecords) {
    zapisz("a.csv", "PRC_ID;LISTA;SP_1\n40; ;100,5\n");
    ASSERT_EQ(uruchom({QStringLiteral("import"), QStringLiteral("PLS200102"), plik("a.csv")}).status, 0);
    for (const char* nazwa : {"PLA200102", "PLB200102", "PLD200102"})
        EXPECT_TRUE(tabela(nazwa).contains(QStringLiteral("\n40;\" \";"))) << nazwa;
}

TEST_F(ImportEksportTest, ABadFileIsNamedAndChangesNothing) {
    struct Zly {
        const char* tabela;
        QByteArray csv;
        const char* powod;
    };
    const Zly zle[] = {
        {"PRACDP", "", "Wiersz 1: brakuje wiersza z nazwami kolumn."},
        {"PRACDP", "prc_id;Nazwisko\n", "Wiersz 1: nie ma kolumny \"Nazwisko\" w tej tabeli."},
        {"PRACDP", "Naz\nX\n", "Wiersz 1: brakuje kolumny klucza \"prc_id\"."},
        {"KALENDARZ", "PrcId;Rok\n", "brakuje kolumny klucza \"Mies\""},
        {"PRACDP", "prc_id;Naz;NAZ\n", "Wiersz 1: kolumna \"NAZ\" jest podana dwa razy."},
        {"PRACDP", "prc_id;Naz\n1;A\n2\n", "Wiersz 3: pól jest 1, a kolumn 2."},
        {"PRACDP", "prc_id;Naz\n1;A\n;B\n", "Wiersz 3: kolumna \"prc_id\", wartość \"\": brakuje klucza."},
        {"PRACDP", "prc_id;Naz\n1;A\n01;B\n", "Wiersz 3: ten sam klucz stoi już w wierszu 2."},
        {"PRACDP", "prc_id;Naz\n1;A\n1,5;B\n", "wartość \"1,5\": to nie jest liczba całkowita od"},
        {"PRACDP", "prc_id;il_dzieci\n1;99999999999\n", "wartość \"99999999999\": to nie jest liczba"},
        {"PRACDP", "prc_id;data_ur\n1;31-02-1970\n", "wartość \"31-02-1970\": to nie jest data dd-mm-rrrr."},
        {"PRACDP", "prc_id;plec\n1;MK\n",
         "kolumna \"plec\", wartość \"MK\": tekst jest dłuższy niż kolumna (1)."},
        {"PRACPR", "prc_id;placa_zas\n1;1.500\n", "wartość \"1.500\": to nie jest kwota"},
        {"PRACPR", "prc_id;placa_zas\n1;1 500\n", "wartość \"1 500\": to nie jest kwota"},
        {"PRACPR", "prc_id;placa_zas\n1;0,12345\n", "najwyżej czterema miejscami"},
        {"PRACPR", "prc_id;placa_zas\n1;922337203685478\n", "to nie jest kwota"},
        {"PRACDP", "prc_id;Naz\n1;\"A\n\n2;B\n", "Wiersz 2: brak zamykającego cudzysłowu."},
        {"PRACDP", "prc_id;Naz\n1;\"A\"B\n", "Wiersz 2: znak za zamykającym cudzysłowem."},
        {"PRACDP", "prc_id;Naz\n1;A\"B\n", "Wiersz 2: cudzysłów w środku pola."},
        {"PRACDP", "prc_id;Naz\n1;A\n2;\xB3\n", "Wiersz 3: tekst nie jest zapisany w UTF-8."},
        {"PRACDP", "prc_id;Naz\n1;\xC5", "Wiersz 2: tekst nie jest zapisany w UTF-8."},
        {"KON", "Num;Wart\n40;" + QByteArray(61, 'x') + "\n", "tekst jest dłuższy niż kolumna (60)."},
        {"PLA200101", "PRC_ID;LISTA;BRUTTO\n1;A;1\n", "Miesiąc 2001-01 jest zablokowany"},
        {"PLA200107", "PRC_ID;LISTA\n1;A\n", "Nie ma tabeli \"PLA200107\"."},
        {"PLX200101", "PRC_ID;LISTA\n1;A\n", "Nie ma tabeli \"PLX200101\"."},
        {"sqlite_master", "name\nX\n", "Nie ma tabeli \"sqlite_master\"."},
    };
    const auto stan = [this] {
        return tabela("PRACDP") + tabela("PRACPR") + tabela("KON") + tabela("PLA200101") + tabela("PRACINF");
    };
    const QString przed = stan();
    for (const Zly& zly : zle) {
        SCOPED_TRACE(zly.powod);
        zapisz("zly.csv", zly.csv);
        const Wynik wynik =
            uruchom({QStringLiteral("import"), QString::fromLatin1(zly.tabela), plik("zly.csv")});
        EXPECT_EQ(wynik.status, 1);
        EXPECT_TRUE(wynik.bledy.contains(QString::fromUtf8(zly.powod))) << wynik.bledy.toStdString();
    }
    EXPECT_EQ(stan(), przed);
    EXPECT_EQ(uruchom({QStringLiteral("import"), QStringLiteral("KON"), plik("brak.csv")}).status, 1);
}

TEST_F(ImportEksportTest, AnExportReplacesAFileButNeverTheDatabase) {
    const QString cel = zapisz("cel.csv", "stare");
    ASSERT_EQ(uruchom({QStringLiteral("eksport"), QStringLiteral("US"), cel}).status, 0);
    EXPECT_TRUE(czytaj(cel).startsWith("US_ID;Nazwa;Kod;"));
    EXPECT_EQ(uruchom({QStringLiteral("eksport"), QStringLiteral("US"), plik("Tornel.mdb")}).status, 1);
    EXPECT_TRUE(czytaj(plik("Tornel.mdb")).startsWith("SQLite format 3"));
    EXPECT_EQ(uruchom({QStringLiteral("eksport"), QStringLiteral("US"), plik("brak/cel.csv")}).status, 1);
}

} // namespace

} // namespace tornel::testy
