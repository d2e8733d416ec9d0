#include "start/Uzytkownicy.h"
#include "app/ListaUzytkownikow.h"
#include "common/Blad.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kPusta = u"Nazwa użytkownika jest pusta. Musisz podać nazwę użytkownika"_s;
const QString kUsunacUzytkownika =
    u"Usunięty użytkownik nie będzie mógł się więcej zalogować do programu. Usunąć ?"_s;

QString zajeta(const QString& nazwa) {
    return u"Użytkownik "_s + nazwa +
           u" jest już zarejestrowany w programie. Podaj inną nazę dla nowego użutkownika."_s;
}

class UzytkownicyTest : public BazaTestowa {
protected:
    UzytkownicyTest() {
        EXPECT_TRUE(lista().Nowy(u"Anna"_s, u"sowa"_s, u"sowa"_s));
        EXPECT_TRUE(lista().Nowy(u"O'Hara"_s, {}, {}));
    }
    ListaUzytkownikow lista() { return ListaUzytkownikow(otoczenie()); }

    /// Every user as "name/password/type", as the file has them.
    QStringList wPliku() {
        QStringList wynik;
        Recordset rs(schemat::UZYTKOWNICY);
        for (rs.Open(sesja().cnPlace); !rs.EOF_(); rs.MoveNext())
            wynik.append(rs.tekst(schemat::UZYTKOWNICY("Nazwa")) + u'/' +
                         rs.tekst(schemat::UZYTKOWNICY("haslo")) + u'/' +
                         QString::number(rs.liczba(schemat::UZYTKOWNICY("Typ"))));
        return wynik;
    }
    const QStringList poczatek_{u"Admin//0"_s, u"Anna/sowa/3"_s, u"O'Hara//3"_s};
};

TEST_F(UzytkownicyTest, NowyMaObaPrawaAOdmowyNicNieDodaja) {
    struct Przypadek {
        QString nazwa, haslo, powtorzenie, komunikat;
    };
    const Przypadek odmowy[] = {
        {u"Ewa"_s, u"a"_s, u"A"_s, u"Nowe hasło oraz hasło powtórzone są różne. Wpisz hasło jeszcze raz."_s},
        {{}, u"a"_s, u"b"_s, u"Nowe hasło oraz hasło powtórzone są różne. Wpisz hasło jeszcze raz."_s},
        {{}, {}, {}, kPusta},
        {u"  "_s, {}, {}, kPusta},
        {u"Anna"_s, {}, {}, zajeta(u"Anna"_s)},
        {u" Admin "_s, {}, {}, zajeta(u"Admin"_s)},
        {u"O'Hara"_s, {}, {}, zajeta(u"O'Hara"_s)},
    };
    for (const Przypadek& p : odmowy) {
        rozmowa_.spodziewaj(p.komunikat, Styl::Wykrzyknik);
        EXPECT_FALSE(lista().Nowy(p.nazwa, p.haslo, p.powtorzenie));
        EXPECT_EQ(wPliku(), poczatek_);
    }
    EXPECT_TRUE(lista().Nowy(u" Jan "_s, u" lis"_s, u" lis"_s));
    EXPECT_EQ(wPliku().last(), u"Jan/lis/3"_s);
    EXPECT_TRUE(SprawdzLogin(sesja(), u"Jan"_s, u" lis"_s)) << "what was typed twice gets in";
    EXPECT_EQ(lista().Wczytaj(), (QStringList{u"Admin"_s, u"Anna"_s, u"O'Hara"_s, u"Jan"_s}));
}

TEST_F(UzytkownicyTest, ZmianaUzytkownika) {
    struct Przypadek {
        QString opis, nazwa;
        DaneUzytkownika dane;
        QString komunikat, wPliku;
    };
    const Przypadek przypadki[] = {
        {u"administrator"_s,
         u"Admin"_s,
         {.nazwa = u"Szef"_s},
         u"Administrator nie może być zmieniony!"_s,
         {}},
        {u"empty name"_s, u"Anna"_s, {.nazwa = u" "_s, .kadry = true}, kPusta, {}},
        {u"taken name"_s, u"Anna"_s, {.nazwa = u"O'Hara"_s, .kadry = true}, zajeta(u"O'Hara"_s), {}},
        {u"own name"_s, u"Anna"_s, {.nazwa = u"Anna"_s, .haslo = u"x"_s, .place = true}, {}, u"Anna/x/2"_s},
        {u"new name"_s, u"Anna"_s, {.nazwa = u"Ewa"_s, .haslo = u"x"_s, .kadry = true}, {}, u"Ewa/x/1"_s},
        // Deliberate: a user left with no right is an administrator from then on.
        {u"no right"_s, u"Ewa"_s, {.nazwa = u"Ewa"_s, .haslo = u"x"_s}, {}, u"Ewa/x/0"_s},
        {u"no way back"_s,
         u"Ewa"_s,
         {.nazwa = u"Ewa"_s, .kadry = true},
         u"Administrator nie może być zmieniony!"_s,
         {}},
    };
    QString oczekiwany = poczatek_.at(1);
    for (const Przypadek& p : przypadki) {
        if (!p.komunikat.isEmpty()) rozmowa_.spodziewaj(p.komunikat, Styl::Wykrzyknik);
        EXPECT_EQ(lista().Wpisz(p.nazwa, p.dane), p.komunikat.isEmpty()) << p.opis.toStdString();
        if (!p.wPliku.isEmpty()) oczekiwany = p.wPliku;
        EXPECT_EQ(wPliku(), (QStringList{poczatek_.at(0), oczekiwany, poczatek_.at(2)}))
            << p.opis.toStdString();
        otworzPonownie();
    }
    EXPECT_TRUE(lista().Wypisz(u"Ewa"_s)->administrator);
    EXPECT_FALSE(lista().Wypisz(u"Anna"_s));
    EXPECT_THROW((void)lista().Wpisz(u"Anna"_s, {.nazwa = u"Anna"_s}), Blad);
}

TEST_F(UzytkownicyTest, UsuwanieOmijaAdministratora) {
    rozmowa_.spodziewaj(u"Użytkownik Admin nie może zostać usunięty z listy."_s, Styl::Wykrzyknik);
    EXPECT_FALSE(lista().Usun(u"Admin"_s));
    rozmowa_.spodziewaj(kUsunacUzytkownika, Odpowiedz::Nie);
    EXPECT_FALSE(lista().Usun(u"Anna"_s));
    EXPECT_EQ(wPliku(), poczatek_);
    rozmowa_.spodziewaj(kUsunacUzytkownika, Odpowiedz::Tak);
    EXPECT_TRUE(lista().Usun(u"Anna"_s));
    EXPECT_EQ(wPliku(), (QStringList{poczatek_.at(0), poczatek_.at(2)}));
    EXPECT_FALSE(SprawdzLogin(sesja(), u"Anna"_s, u"sowa"_s));
    EXPECT_THROW((void)lista().Usun(u"Anna"_s), Blad);
}

TEST_F(UzytkownicyTest, ZmianaWlasnegoHasla) {
    const QString zleStare = u"Stare hasło jest nieprawidłowe! Nie można zmienić hasła."_s;
    const QString rozne = u"Nowe hasło i hasło potwierdzone są różne! Nie można zmienić hasła."_s;
    const auto zmien = [&](const QString& stare, const QString& nowe, const QString& potwierdzone,
                           const QString& komunikat, ZmianaHasla wynik) {
        rozmowa_.spodziewaj(komunikat, wynik == ZmianaHasla::Zmienione ? Styl::Informacja : Styl::Wykrzyknik);
        EXPECT_EQ(SprHaslo(otoczenie(), stare, nowe, potwierdzone), wynik);
    };
    ASSERT_TRUE(SprawdzLogin(sesja(), u"Anna"_s, u"sowa"_s));
    zmien(u"Sowa"_s, u"lis"_s, u"lis"_s, zleStare, ZmianaHasla::ZleStare);
    zmien({}, u"lis"_s, u"kos"_s, zleStare, ZmianaHasla::ZleStare);
    zmien(u"sowa"_s, u"lis"_s, u"Lis"_s, rozne, ZmianaHasla::RozneNowe);
    EXPECT_EQ(wPliku(), poczatek_);

    zmien(u"sowa"_s, u"lis "_s, u" lis"_s, u"Hasło zostało zmienione."_s, ZmianaHasla::Zmienione);
    zmien(u"sowa"_s, u"kos"_s, u"kos"_s, zleStare, ZmianaHasla::ZleStare);
    zmien(u"lis"_s, u"kos"_s, u"kos"_s, u"Hasło zostało zmienione."_s, ZmianaHasla::Zmienione);
    EXPECT_EQ(wPliku().at(1), u"Anna/kos/3"_s);

    // Though "Admin" can be neither changed nor deleted, his password can.
    ASSERT_TRUE(SprawdzLogin(sesja(), u"Admin"_s, {}));
    zmien({}, u"klucz"_s, u"klucz"_s, u"Hasło zostało zmienione."_s, ZmianaHasla::Zmienione);
    EXPECT_EQ(wPliku().at(0), u"Admin/klucz/0"_s);

    sesja().uzytkownik.nazwa = u"Nikt"_s;
    zmien(u"klucz"_s, u"a"_s, u"a"_s,
          u"Nie można odnaleźć danych o użytkowniku! Hasło nie zostanie zmienione"_s,
          ZmianaHasla::BrakUzytkownika);
}

} // namespace

} // namespace tornel::testy
