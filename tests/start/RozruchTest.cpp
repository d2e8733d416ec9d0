#include "start/Rozruch.h"
#include "start/Uzytkownicy.h"
#include "wsparcie/DawnaBaza.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

TEST(RozruchTest, SwitchesOfTheCommandLine) {
    const struct {
        const char16_t* wiersz;
        bool admin, clrpwd, aktua;
    } przypadki[] = {
        {u"", false, false, false},
        {u"ADMIN", false, false, false}, // the piece before the first stroke is no switch
        {u"/ADMIN", true, false, false},
        {u"/aktua", false, false, true},
        {u"tornel / Aktua  /clrpwd", false, true, true},
        {u"/ADMIN/CLRPWD/AKTUA/INNE", true, true, true},
        {u"/ADMINX /AK TUA", false, false, false},
    };
    for (const auto& p : przypadki) {
        const Przelaczniki wynik = CzytajPrzelaczniki(QString::fromUtf16(p.wiersz));
        EXPECT_EQ(wynik.admin, p.admin) << QString::fromUtf16(p.wiersz).toStdString();
        EXPECT_EQ(wynik.clrpwd, p.clrpwd) << QString::fromUtf16(p.wiersz).toStdString();
        EXPECT_EQ(wynik.aktua, p.aktua) << QString::fromUtf16(p.wiersz).toStdString();
    }
}

TEST(RozruchTest, TheIniFileNamesTheDatabase) {
    const QTemporaryDir folder, gdzieIndziej;
    const QString domyslna = folder.filePath(u"Tornel.mdb"_s),
                  inna = gdzieIndziej.filePath(u"Żółta baza.mdb"_s);
    ASSERT_TRUE(QFile(inna).open(QIODevice::WriteOnly));
    RozmowaSkrypt rozmowa;
    EXPECT_EQ(ZnajdzBaze(folder.path(), rozmowa), domyslna) << "no file: in silence";
    const struct {
        QString tresc;
        bool dobra;
    } przypadki[] = {
        {inna, true},
        {inna + u"\r\ndruga linia\r\n"_s, true},
        {u"  "_s + inna + u" \n"_s, true},
        {gdzieIndziej.filePath(u"brak.mdb"_s), false},
        {gdzieIndziej.path(), false}, // a folder is no database
        {u"\n"_s + inna, false},      // only the first line counts
        {QString(), false},
    };
    for (const auto& p : przypadki) {
        QFile ini(folder.filePath(u"Baza.ini"_s));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly) && ini.write(p.tresc.toUtf8()) >= 0);
        ini.close();
        if (!p.dobra)
            rozmowa.spodziewaj(u"Nie można znaleźć bazy podadnej w pliku Baza.ini"_s, Styl::Krytyczny);
        EXPECT_EQ(ZnajdzBaze(folder.path(), rozmowa), p.dobra ? inna : domyslna) << p.tresc.toStdString();
        EXPECT_TRUE(rozmowa.gotowa());
    }
}

class RozruchBazyTest : public BazaTestowa {};

TEST_F(RozruchBazyTest, AFailedStartSaysWhereAndWhy) {
    const auto komunikat = [&](const QString& plik) {
        try {
            const Program program(plik, folder_.path(), rozmowa_);
        } catch (const BladStartu& blad) {
            return blad.komunikat();
        }
        return QString();
    };
    const QString brak = folder_.filePath(u"brak.mdb"_s);
    EXPECT_TRUE(komunikat(brak).startsWith(u"Procedura 'PStart': błąd w lini: 1\n"_s));
    EXPECT_TRUE(komunikat(brak).contains(brak));
    EXPECT_FALSE(QFile::exists(brak));
    EXPECT_TRUE(komunikat(sciezka()).contains(u"otwarty w innym programie"_s))
        << "the first program holds it";

    ASSERT_TRUE(sesja().rsSZ_PL.Znajdz(45));
    sesja().rsSZ_PL.Delete();
    sesja().rsSZ_PL.UpdateBatch(u"Dane testu");
    program_.reset();
    EXPECT_TRUE(komunikat(sciezka()).startsWith(u"Procedura 'PStart': błąd w lini: 2\n"_s));
}

TEST_F(RozruchBazyTest, TheTemplateIsReadyForWork) {
    Sesja& s = sesja();
    EXPECT_EQ(s.rsSZ_PL.RecordCount(), kDodatnich + kUjemnych);
    const SkladnikiPlac& k = otoczenie().skladniki;
    const Skladnik& placa = k.dodatni(stale().PlZas);
    EXPECT_TRUE(placa.akt && placa.brutto && placa.zus && placa.ubzdr);
    EXPECT_TRUE(k.SkAkt(stale().PremPr) && k.SkAkt(stale().SklUrl));
    for (int n = 1; n <= kDodatnich; ++n) EXPECT_FALSE(k.SkNazwa(n).isEmpty()) << n;
    for (int n = 1; n <= kUjemnych; ++n) EXPECT_FALSE(k.SkUNazwa(n).isEmpty()) << n;
    for (const TabelaDef* tabela : schemat::Tabele) {
        Recordset rs(*tabela);
        rs.Open(s.cnPlace);
        const bool pelna =
            tabela == &schemat::KON || tabela == &schemat::SZ_PL || tabela == &schemat::UZYTKOWNICY;
        EXPECT_EQ(rs.RecordCount() > 0, pelna) << tabela->nazwa;
    }
    EXPECT_EQ(stale().GranicaG12, zl(29624));
    EXPECT_EQ(stale().ArchPath, folder_.path()) << "folder constants begin with the program's folder";
    EXPECT_TRUE(SprawdzLogin(s, u"Admin"_s, {}));
    EXPECT_EQ(s.uzytkownik.typ, 0);
    EXPECT_THROW(UtworzBazeZSzablonu(sciezka(), folder_.path(), rozmowa_), Blad)
        << "an existing file is refused";
    EXPECT_THROW(UtworzBazeZSzablonu(folder_.filePath(u"nie ma/x.mdb"_s), folder_.path(), rozmowa_), Blad);
}

TEST_F(RozruchBazyTest, TheNextStartKeepsWhatIsThereAndMendsWhatIsMissing) {
    Sesja& s = sesja();
    const int stalych = s.rsKON.RecordCount();
    ASSERT_TRUE(s.rsKON.Znajdz(63));
    s.rsKON.ustaw(schemat::KON("Wart"), u"500,00"_s);
    for (const int num : {40, 701}) {
        ASSERT_TRUE(s.rsKON.Znajdz(num));
        s.rsKON.Delete();
    }
    s.rsKON.UpdateBatch(u"Dane testu");
    dodajPracownika(3);
    otworzPonownie();
    EXPECT_EQ(sesja().rsKON.RecordCount(), stalych);
    EXPECT_EQ(sesja().rsUZYTKOWNICY.RecordCount(), 1) << "no second administrator";
    EXPECT_EQ(stale().RKwPZ, zl(500));
    EXPECT_EQ(stale().GranicaG12, zl(29624));
    EXPECT_TRUE(Pracownicy(otoczenie()).istnieje(3));

    sesja().rsUZYTKOWNICY.MoveFirst();
    sesja().rsUZYTKOWNICY.Delete();
    sesja().rsUZYTKOWNICY.UpdateBatch(u"Dane testu");
    // A file of an older program; the clerk is told where it was put aside.
    dawnaBaza(sesja().cnPlace);
    program_.reset();
    const QString czas = QFileInfo(sciezka()).lastModified().toString(u"yyyyMMdd-HHmmss"_s);
    const QString kopia = folder_.filePath(u"Tornel-wersja-0-%1.mdb"_s.arg(czas));
    rozmowa_.spodziewaj(
        u"Baza danych została przystosowana do tej wersji programu. Poprzednia baza danych jest "
        "w pliku „%1”."_s.arg(kopia),
        Styl::Informacja);
    otworz();
    EXPECT_TRUE(QFile::exists(kopia));
    EXPECT_TRUE(SprawdzLogin(sesja(), u"Admin"_s, {}));
}

} // namespace

} // namespace tornel::testy
