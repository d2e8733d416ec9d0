// Every field of the personnel file from the keyboard to the row and back.
#include "rules/SkladnikiPlac.h"
#include "wsparcie/EkranPracownikow.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>

namespace tornel::testy {

using namespace ekranKartoteki;
using schemat::PRACSK;

namespace {

const QString kEmoji = QString::fromUtf8("\xF0\x9F\x98\x80");

/// What a text typed into a field of some kind becomes.
struct Wpis {
    QString wpisany;
    QString kwota, liczba; ///< as shown; a date is empty after each of them
};

/// What a field of text keeps of it: the column's length, and no half of a character.
QString przyciety(const Pole& pole, const QString& tekst) {
    QString wynik = najdluzszy(pole) > 0 ? tekst.left(najdluzszy(pole)) : tekst;
    if (!wynik.isEmpty() && wynik.back().isHighSurrogate()) wynik.chop(1);
    return wynik;
}

class PracPola : public EkranPracownikow {
protected:
    /// All components laid out in the catalogue, none of them ticked for the employee.
    void wszystkieSkladniki() {
        Recordset& sk = sesja().rsPRACSK;
        ASSERT_TRUE(sk.Znajdz(7));
        sk.ustaw(PRACSK("dod"), 0);
        sk.ustaw(PRACSK("pot"), 0);
        sk.UpdateBatch(u"Dane testu");
        Recordset& sz = sesja().rsSZ_PL;
        for (sz.MoveFirst(); !sz.EOF_(); sz.MoveNext()) sz.ustawFlage(schemat::SZ_PL("Akt"), true);
        sz.UpdateBatch(u"Dane testu");
        otoczenie().skladniki.WczytajSkladnikiPlac(sesja());
    }
    void pokazZakladke(int zakladka) {
        if (karty().currentIndex() != zakladka) karty().setCurrentIndex(zakladka);
    }
    /// The clerk says No to both copies of the address of registration.
    void bezKopii() {
        for (const char16_t* adres : {u"<Adresu zamieszkania> ?", u"<Adresu do korespondencji> ?"})
            rozmowa_.spodziewaj(QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do ") +
                                    QString::fromUtf16(adres),
                                Odpowiedz::Nie, QStringLiteral("Pytanie."));
    }
    void opusc() { lista().setFocus(Qt::TabFocusReason); }
    void zapiszIZacznijOdNowa() {
        QTest::keyClick(okno.get(), Qt::Key_S, Qt::ControlModifier);
        EXPECT_FALSE(okno->isWindowModified());
        okno->close();
        EXPECT_TRUE(rozmowa_.gotowa());
        odNowa();
    }
    /// Gives the field a value that no other field has, as the clerk would, and says which it is.
    Wartosc wypelnij(const Pole& pole, int nr) {
        auto& kontrolka = k<QWidget>(pole.nazwa);
        EXPECT_TRUE(kontrolka.isVisible() && kontrolka.isEnabled()) << pole.nazwa.toStdString();
        const QDate data = QDate(1960, 1, 1).addDays(nr);
        switch (pole.rodzaj) {
        case Rodzaj::Flaga:
            QTest::keyClick(&kontrolka, Qt::Key_Space);
            return QStringLiteral("T");
        case Rodzaj::Wybor: {
            auto& wybor = k<QComboBox>(pole.nazwa);
            QTest::keyClick(&wybor, Qt::Key_End);
            const bool tekstowa = pole.kolumna.def().typ == Typ::Text;
            return tekstowa ? Wartosc(wybor.currentText()) : Wartosc(wybor.currentData().toLongLong());
        }
        case Rodzaj::Kwota:
            wpisz(kontrolka, QStringLiteral("%1.25").arg(nr));
            return Waluta::zSurowej(qint64{nr} * 10000 + 2500);
        case Rodzaj::Liczba:
            wpisz(kontrolka, QString::number(70'000 + nr));
            return qint64{70'000} + nr;
        case Rodzaj::Data:
            wpisz(kontrolka, data.toString(QStringLiteral("ddMMyyyy")));
            return data;
        default:
            // As long as the column: neither PESEL nor NIP takes less.
            const QString tekst = przyciety(pole, QStringLiteral("%1ŁÓŻ").arg(nr).repeated(12));
            wpisz(kontrolka, tekst);
            return tekst;
        }
    }
    /// What the file has for the field; of a mask the field's own bit.
    Wartosc wPlikuPola(const Pole& pole) {
        const Wartosc wartosc = wPliku(pole.kolumna);
        if (pole.klucz == 0) return wartosc;
        const auto* bity = std::get_if<qint64>(&wartosc);
        const bool tak = bity && maBit(static_cast<quint32>(*bity), pole.klucz);
        return tak ? QStringLiteral("T") : QStringLiteral("N");
    }
    QString pokazany(const Pole& pole) {
        auto& kontrolka = k<QWidget>(pole.nazwa);
        if (const auto* flaga = qobject_cast<QCheckBox*>(&kontrolka))
            return flaga->isChecked() ? QStringLiteral("T") : QStringLiteral("N");
        if (const auto* wybor = qobject_cast<QComboBox*>(&kontrolka)) return wybor->currentData().toString();
        if (const auto* notatka = qobject_cast<QPlainTextEdit*>(&kontrolka)) return notatka->toPlainText();
        return k(pole.nazwa).text();
    }
};

TEST_F(PracPola, KazdePoleKazdejZakladkiTrafiaDoSwojejKolumny) {
    wszystkieSkladniki();
    ekran(FiltrPracownikow::Wszyscy, 7);
    bezKopii();
    QHash<QString, Wartosc> wpisane;
    int nr = 0;
    for (const auto& [zakladka, pole] : wszystkiePola()) {
        pokazZakladke(zakladka);
        if (pole.dostep == Dostep::Edycja) wpisane.insert(pole.nazwa, wypelnij(pole, ++nr));
    }
    ASSERT_GE(nr, 190);
    opusc();
    zapiszIZacznijOdNowa();

    ekran(FiltrPracownikow::Wszyscy, 7);
    for (const auto& [zakladka, pole] : wszystkiePola()) {
        pokazZakladke(zakladka);
        const Wartosc wartosc = wpisane.value(pole.nazwa, Wartosc(qint64{7})); // the number cannot be typed
        EXPECT_EQ(wPlikuPola(pole), wartosc) << pole.nazwa.toStdString();
        EXPECT_EQ(pokazany(pole), tekstWartosci(pole, wartosc)) << pole.nazwa.toStdString();
    }
    okno->close(); // looking at everything has changed nothing, so nothing is asked
    EXPECT_FALSE(okno->isVisible());
}

TEST_F(PracPola, ZlosliweTekstyWKazdymPolu) {
    wszystkieSkladniki();
    const Wpis wpisy[] = {
        {QStringLiteral("O'Hara\"; DROP TABLE PRACDP;--"), QStringLiteral("0,00"), QStringLiteral("0")},
        {kEmoji.repeated(9), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("9").repeated(400), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("<b>%1</b>\\0 'abc'"), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("1 2"), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("-"), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("1e400"), QStringLiteral("0,00"), QStringLiteral("0")},
        {QStringLiteral("-7,5"), QStringLiteral("-7,50"), QStringLiteral("-8")},
    };
    bezKopii();
    for (const Wpis& w : wpisy) {
        SCOPED_TRACE(w.wpisany.left(20).toStdString());
        ekran(FiltrPracownikow::Wszyscy, 7);
        if (&w == &wpisy[0]) {
            pokazZakladke(AktywneSkladniki);
            klik(u"cmdAktAll");
            klik(u"cmdUaktDod");
        }
        QHash<QString, QString> oczekiwane;
        for (const auto& [zakladka, pole] : wszystkiePola()) {
            const bool pisane = pole.rodzaj != Rodzaj::Flaga && pole.rodzaj != Rodzaj::Wybor;
            if (!pisane || pole.dostep == Dostep::Odczyt) continue;
            pokazZakladke(zakladka);
            QString zostaje = przyciety(pole, w.wpisany);
            if (pole.rodzaj == Rodzaj::Kwota) zostaje = w.kwota;
            if (pole.rodzaj == Rodzaj::Liczba) zostaje = w.liczba;
            if (pole.rodzaj == Rodzaj::Data) zostaje = QString();
            for (const auto& [nazwa, dlugosc, co] :
                 {std::tuple(QStringLiteral("txtPesel"), 11, QStringLiteral("Pesel")),
                  std::tuple(QStringLiteral("txtNip"), 13, QStringLiteral("NIP"))}) {
                if (pole.nazwa != nazwa || zostaje.isEmpty() || zostaje.size() >= dlugosc) continue;
                rozmowa_.spodziewaj(QStringLiteral("Nieprawidłowa długość ") + co, Styl::Wykrzyknik);
                zostaje.clear();
            }
            wpisz(pole.nazwa, w.wpisany);
            opusc();
            EXPECT_EQ(pokazany(pole), zostaje) << pole.nazwa.toStdString();
            oczekiwane.insert(pole.nazwa, zostaje);
        }
        ASSERT_GE(oczekiwane.size(), 130);
        zapiszIZacznijOdNowa();
        ekran(FiltrPracownikow::Wszyscy, 7);
        for (const auto& [zakladka, pole] : wszystkiePola()) {
            if (!oczekiwane.contains(pole.nazwa)) continue;
            pokazZakladke(zakladka);
            EXPECT_EQ(pokazany(pole), oczekiwane.value(pole.nazwa)) << pole.nazwa.toStdString();
        }
        okno->close();
    }
}

TEST_F(PracPola, KopiaAdresuJestProponowanaPrzyKazdymWejsciuDoPustego) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    wpisz(QStringLiteral("txtMiasto"), QStringLiteral("Nowy Sącz"));
    const QString zamieszkania =
        QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do <Adresu zamieszkania> ?");
    // The focus goes from the first tab's field straight into the address.
    rozmowa_.spodziewaj(zamieszkania, Odpowiedz::Nie, QStringLiteral("Pytanie."));
    QTest::keyClick(okno.get(), Qt::Key_2, Qt::AltModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(rozmowa_.gotowa());
    EXPECT_TRUE(k(QStringLiteral("txtMiasto_m")).hasFocus());
    wpisz(QStringLiteral("txtKod_m"), QString());
    EXPECT_TRUE(rozmowa_.gotowa()) << "asked once while the tab is shown";

    // Another employee comes into the field where the focus stands.
    for (const auto& [klawisz, odpowiedz] :
         {std::pair(Qt::Key_Up, Odpowiedz::Nie), std::pair(Qt::Key_Down, Odpowiedz::Tak)}) {
        rozmowa_.spodziewaj(zamieszkania, odpowiedz, QStringLiteral("Pytanie."));
        QTest::keyClick(QApplication::focusWidget(), klawisz, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_TRUE(rozmowa_.gotowa());
        wpisz(QStringLiteral("txtUlica_m"), QStringLiteral("Polna"));
    }
    EXPECT_EQ(k(QStringLiteral("txtMiasto_m")).text(), QStringLiteral("Nowy Sącz"));
    EXPECT_EQ(k(QStringLiteral("txtUlica_m")).text(), QStringLiteral("Polna"));
    rozmowa_.spodziewaj(QStringLiteral("Czy zapisać zmiany ?"), Odpowiedz::Nie);
    okno->close();
}

} // namespace

} // namespace tornel::testy
