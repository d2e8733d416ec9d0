// Every writing command of the console is undone to the file as it was and made again, and shows itself in
// the journal.
#include "store/Sesja.h"
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <algorithm>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tornel::testy {

namespace {

class DziennikKonsoli : public KonsolaTestowa {
protected:
    /// All tables as CSV, those of the months under work included. What was printed or written stays so.
    [[nodiscard]] QStringList calaBaza() const {
        QStringList wynik;
        for (const TabelaDef* t : schemat::Tabele)
            if (t->slad == Slad::Cofany) wynik += tabela(std::string(t->nazwa).c_str());
        for (const TabelaDef* t : schemat::TabeleMiesiaca)
            for (const char* miesiac : {"200101", "200102", "200103"})
                wynik += tabela((std::string(t->nazwa) + miesiac).c_str());
        for (const char* t : {"NADGN200102", "NADG200102"}) wynik += tabela(t);
        return wynik;
    }
    [[nodiscard]] QString wpis(int nr) const {
        const QJsonArray wpisy = QJsonDocument::fromJson(uruchom("--json dziennik").wyjscie.toUtf8()).array();
        return wpisy.at(nr).toObject().value(QStringLiteral("CZYNNOŚĆ")).toString();
    }
    /// How many actions can be undone, or made again.
    [[nodiscard]] qsizetype ileCzynnosci(const QString& cofanie) const {
        const QJsonArray wpisy = QJsonDocument::fromJson(uruchom("--json dziennik").wyjscie.toUtf8()).array();
        return std::ranges::count_if(wpisy, [&](const QJsonValue& w) {
            return w.toObject().value(QStringLiteral("STAN")).toString() == cofanie;
        });
    }
    /// One command for each way in which the console writes.
    [[nodiscard]] QStringList poleceniaPiszace() const {
        const QString urlopy =
            zapisz("urlopy.csv", "PRC_ID;DATA;DATA_DO;RODZAJ\n3;05-02-2001;09-02-2001;0\n");
        const QString osoby = zapisz("osoby.csv", "prc_id;Naz;Imie_1\n70;Nowa;Ewa\n3;Zmieniona;Anna\n");
        const QString place = zapisz("place.csv", "prc_id;placa_zas\n3;2222,00\n");
        return {
            QStringLiteral("stale 63=493,32"),
            QStringLiteral("--nie pracownik nowy --nr 60 --nazwisko Żak --imie Jan"),
            QStringLiteral("import URL ") + urlopy,
            QStringLiteral("import PRACDP ") + osoby,
            QStringLiteral("--tak miesiac nowy 2001-03"),
            QStringLiteral("--tak lista dodaj 2001-03 --wszyscy"),
            QStringLiteral("import PRACPR ") + place,
            QStringLiteral("--tak lista przepisz 2001-03"),
            QStringLiteral("--tak lista przelicz 2001-03"),
            QStringLiteral("--tak lista konto 2001-03"),
            QStringLiteral("--tak pit4 nowa 2001-02"),
            QStringLiteral("--tak pit4 usun 2001-02"),
            QStringLiteral("--tak umowa nowa UZL --pracownik 2 --data 05-02-2001"),
            QStringLiteral(
                "--tak multicash 2001-02 --paczka 0 --wystawienie 01-03-2001 --platnosc 01-03-2001 --konto 1 "
                "--szczegoly X --katalog ") +
                folder_.path(),
            QStringLiteral("--tak miesiac blokada 2001-03"),
            QStringLiteral("--tak pracownik usun 5"),
            QStringLiteral("--tak miesiac usun 2001-02"),
        };
    }
    /// Undoes, or makes again, until nothing is left; each step names its action in the journal too.
    qsizetype doKonca(const char* polecenie, const QString& cofanie, const char* mowi,
                      const QString& wpisem) const {
        const qsizetype ile = ileCzynnosci(cofanie);
        for (qsizetype i = 0; i < ile; ++i) {
            const Wynik wynik = uruchom({QStringLiteral("--tak"), QLatin1String(polecenie)});
            EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
            EXPECT_TRUE(wynik.wyjscie.startsWith(QString::fromUtf8(mowi))) << wynik.wyjscie.toStdString();
            EXPECT_EQ(wpis(0), wpisem + wynik.wyjscie.trimmed().section(QStringLiteral(": "), 1));
        }
        EXPECT_EQ(ileCzynnosci(cofanie), 0);
        return ile;
    }
};

TEST_F(DziennikKonsoli, EveryWritingCommandIsUndoneAndMadeAgain) {
    const QString mozna = QStringLiteral("można cofnąć"), ponowic = QStringLiteral("cofnięta, można ponowić");
    const QStringList poczatek = calaBaza();
    qsizetype czynnosci = 0;
    for (const QString& polecenie : poleceniaPiszace()) {
        SCOPED_TRACE(polecenie.toStdString());
        const Wynik wynik = uruchom(polecenie.split(QLatin1Char(' ')));
        EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
        const qsizetype teraz = ileCzynnosci(mozna);
        EXPECT_GT(teraz, czynnosci) << "the command has written nothing";
        czynnosci = teraz;
    }
    const QStringList koniec = calaBaza();
    EXPECT_TRUE(koniec != poczatek);
    const qsizetype cofniete = doKonca("cofnij", mozna, "Cofnięto: ", QStringLiteral("Cofnięcie: "));
    EXPECT_TRUE(calaBaza() == poczatek);
    EXPECT_EQ(uruchom("cofnij").status, 1);
    EXPECT_EQ(doKonca("ponow", ponowic, "Ponowiono: ", QStringLiteral("Ponowienie: ")), cofniete);
    EXPECT_TRUE(calaBaza() == koniec);
    EXPECT_EQ(uruchom("ponow").bledy, QStringLiteral("Nie ma czynności do ponowienia.\n"));
}

TEST_F(DziennikKonsoli, TheJournalIsListedNarrowedAndToldValueByValue) {
    ASSERT_EQ(uruchom("stale 300=Zakład").status, 0);
    ASSERT_EQ(uruchom("--tak pracownik usun 12").status, 0);
    const QString wszystko = uruchom("dziennik").wyjscie;
    EXPECT_TRUE(wszystko.contains(QStringLiteral("Usunięcie pracownika nr 12"))) << wszystko.toStdString();
    EXPECT_TRUE(wszystko.contains(QStringLiteral("Stałe programu")));
    EXPECT_TRUE(wszystko.contains(QStringLiteral("konsola")));
    const QString jego = uruchom("dziennik --pracownik 12").wyjscie;
    EXPECT_TRUE(jego.contains(QStringLiteral("nr 12")) && !jego.contains(QStringLiteral("Stałe")));
    EXPECT_FALSE(uruchom("dziennik --do 31-12-2000").wyjscie.contains(QStringLiteral("nr 12")));
    const QString stala = uruchom("dziennik 1").wyjscie;
    EXPECT_TRUE(stala.contains(QStringLiteral("stałe programu  numer stałej 300  wartość")))
        << stala.toStdString();
    EXPECT_TRUE(stala.trimmed().endsWith(QStringLiteral("Zakład"))) << stala.toStdString();
    for (const char* zle : {"dziennik --od 2001", "dziennik x", "dziennik --pracownik 0"})
        EXPECT_EQ(uruchom(zle).status, 2) << zle;
    // Nobody writes the journal by hand.
    const QString csv = zapisz("dziennik.csv", "STAN;ID\n1;99\n");
    EXPECT_EQ(uruchom({QStringLiteral("import"), QStringLiteral("DZIENNIK"), csv}).status, 1);
    EXPECT_EQ(uruchom("eksport DZIENNIK_ZMIANY").status, 1);
}

} // namespace

} // namespace tornel::testy
