// The forms of the declarations: pictures that fit their boxes, sums that are those
// of the tables, and each page as it stands on paper.
#include "common/Liczby.h"
#include "druk/Pisma.h"
#include "druk/Wyjscie.h"
#include "reports/deklaracje/FormularzePit.h"
#include "reports/deklaracje/WydrukDeklaracji.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "tax/DeklaracjeRoczne.h"
#include "tax/Pit4.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/TekstStrony.h"
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using reports::StronaFormularza;
using reports::StronyFormularza;
using reports::UlozDeklaracje;

constexpr Deklaracja kWszystkie[] = {Deklaracja::Pit4, Deklaracja::Pit11, Deklaracja::Pit40,
                                     Deklaracja::Pit8B};

class FormularzePit : public testing::Test {
protected:
    FormularzePit() {
        UtworzPrzyklad(folder_.filePath(u"Tornel.mdb"_s), 12, 3, folder_.path());
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    /// A declaration of the example firm: the month's, or that of somebody who has contracts too.
    WierszDeklaracji przykladowa(Deklaracja ktora) {
        const QDate dzis(2001, 4, 20);
        if (ktora == Deklaracja::Pit4) {
            EXPECT_TRUE(Pit4(o()).Nowy({{2001, 3}, 0}, {}, dzis));
            WierszDeklaracji d(ktora, o().sesja.rsPIT4);
            for (int n = 10; n <= 17; ++n) d.ustaw("pob_zal_", n, zl(n));
            d.ustaw("roznica",
                    u"Zaliczka marcowa pomniejszona o nadpłatę z rozliczenia rocznego pracowników."_s);
            return d;
        }
        const auto umowy = SumujUmowyWszystkich(o().sesja, schemat::UZL, {{2001, 1}, {2001, 12}});
        const QList<qint64> zUmowami = umowy.keys();
        const qint64 prcId = *std::ranges::min_element(zUmowami);
        return DaneRoczne(o(), ktora, {{2001, 1}, {2001, 12}}, prcId).wypelnij(prcId, dzis);
    }
    static std::shared_ptr<const Uklad> uklad(const WierszDeklaracji& d) {
        return UlozDeklaracje({d.ktora(), 1, [d](int) { return d; }});
    }

    QTemporaryDir folder_;
    RozmowaZgoda rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(FormularzePit, EveryPictureIsDrawnAfterItsBoxes) {
    const bool zapisz = qEnvironmentVariableIsSet("TORNEL_WZORCE");
    for (const Deklaracja ktora : kWszystkie)
        for (StronaFormularza& s : StronyFormularza(ktora)) {
            const QString zasob = s.formularz().obraz.toString();
            if (zapisz) {
                QFile plik(QFileInfo(QString::fromUtf8(__FILE__)).path() + u"/../../data/formularze/"_s +
                           zasob.section(u'/', -1));
                ASSERT_TRUE(plik.open(QIODevice::WriteOnly) && plik.write(s.svg()) > 0);
                continue;
            }
            QFile obraz(zasob);
            ASSERT_TRUE(obraz.open(QIODevice::ReadOnly)) << zasob.toStdString();
            EXPECT_TRUE(obraz.readAll() == s.svg()) << zasob.toStdString();
        }
}

TEST_F(FormularzePit, BoxesKeepOffEachOtherAndEverythingStandsOnThePage) {
    for (const Deklaracja ktora : kWszystkie)
        for (StronaFormularza& s : StronyFormularza(ktora)) {
            SCOPED_TRACE(s.formularz().obraz.toString().toStdString());
            EXPECT_LE(s.zajete(), StronaFormularza::kWys);
            const auto prostokat = [](const Miejsce& m) { return QRectF(m.x, m.y, m.szer, m.wys); };
            const QRectF strona(0, 0, StronaFormularza::kSzer + 0.01, StronaFormularza::kWys);
            const QList<Miejsce>& ramki = s.ramki();
            for (qsizetype i = 0; i < ramki.size(); ++i) {
                const QRectF a = prostokat(ramki[i]);
                EXPECT_TRUE(strona.contains(a));
                for (qsizetype j = i + 1; j < ramki.size(); ++j) {
                    const QRectF wspolne = a & prostokat(ramki[j]);
                    // The little squares stand inside the box of their choice.
                    const bool wewnatrz = a.contains(prostokat(ramki[j]));
                    EXPECT_TRUE(wewnatrz || wspolne.width() < 0.05 || wspolne.height() < 0.05)
                        << i << " and " << j << " at " << a.x() << ',' << a.y();
                }
            }
            for (const NapisFormularza& n : s.formularz().napisy)
                EXPECT_LE(szerTekstu(n.tekst, n.pismo), n.miejsce.szer) << n.tekst.toString().toStdString();
            for (const PoleFormularza& p : s.formularz().pola) {
                const auto w = std::ranges::count_if(ramki, [&](const Miejsce& m) {
                    return prostokat(m).adjusted(-0.3, -0.3, 0.3, 0.3).contains(prostokat(p.miejsce));
                });
                EXPECT_GE(w, 1) << "a field outside any box";
            }
        }
}

TEST_F(FormularzePit, EveryPageOfTheExampleFirm) {
    for (const Deklaracja ktora : kWszystkie) {
        const auto wydruk = uklad(przykladowa(ktora));
        ASSERT_EQ(wydruk->stron(), 2);
        const QString nazwa = wydruk->opis().nazwa;
        porownajZWzorcem(__FILE__, nazwa + u"-1"_s, *wydruk, 1);
        porownajZWzorcem(__FILE__, nazwa + u"-2"_s, *wydruk, 2);
        EXPECT_EQ(UlozDeklaracje({ktora, 3, [&](int) { return WierszDeklaracji(ktora); }}, 2)->stron(), 3);
    }
}

TEST_F(FormularzePit, SumsOnPaperAreThoseOfTheTables) {
    const WierszDeklaracji pit4 = przykladowa(Deklaracja::Pit4);
    const auto miesiac = PodsumujMiesiac(o().sesja, {2001, 3});
    ASSERT_TRUE(miesiac);
    const Waluta suma2 = miesiac->zaliczka + zl(11 + 12 + 16 - 10 - 13 - 14 - 15);
    const auto kwota = [](Waluta k) { return tekstPola(k, Format::Kwota); };
    const auto papier4 = uklad(pit4);
    EXPECT_TRUE(papier4->zawiera(0, kwota(miesiac->przychod)));
    EXPECT_TRUE(papier4->zawiera(0, kwota(miesiac->zaliczka)));
    EXPECT_TRUE(papier4->zawiera(1, kwota(suma2)) && papier4->zawiera(1, kwota(suma2 - zl(17))));
    for (const Deklaracja ktora : {Deklaracja::Pit11, Deklaracja::Pit40, Deklaracja::Pit8B}) {
        const WierszDeklaracji d = przykladowa(ktora);
        const auto papier = uklad(d);
        Waluta przychod, zaliczki;
        for (int n = 1; n <= 10; ++n) {
            przychod += d.kwota("przy_" + std::to_string(n));
            zaliczki += d.kwota("pob_zal_" + std::to_string(n));
        }
        EXPECT_GT(przychod, Waluta{});
        EXPECT_TRUE(papier->zawiera(1, kwota(przychod)) && papier->zawiera(1, kwota(zaliczki)))
            << papier->opis().nazwa.toStdString();
    }
}

QImage obrazStrony(const Uklad& uklad, int strona, int punktowNaMm) {
    QImage obraz(210 * punktowNaMm, 297 * punktowNaMm, QImage::Format_Grayscale8);
    obraz.fill(Qt::white);
    QPainter malarz(&obraz);
    MalujStrone(malarz, punktowNaMm * 25.4, uklad, strona);
    return obraz;
}

/// Where a page may change when its fields are filled: white inside the boxes that hold a field.
QImage polaStrony(StronaFormularza& strona, int punktowNaMm) {
    QImage obraz(210 * punktowNaMm, 297 * punktowNaMm, QImage::Format_Grayscale8);
    obraz.fill(Qt::black);
    QPainter malarz(&obraz);
    for (const PoleFormularza& p : strona.formularz().pola) {
        const QRectF pole(p.miejsce.x, p.miejsce.y, p.miejsce.szer, p.miejsce.wys);
        for (const Miejsce& m : strona.ramki())
            if (const QRectF ramka(m.x, m.y, m.szer, m.wys);
                ramka.adjusted(-0.3, -0.3, 0.3, 0.3).contains(pole) && ramka.height() < 60)
                malarz.fillRect(QRectF((12 + m.x) * punktowNaMm, (12 + m.y) * punktowNaMm,
                                       m.szer * punktowNaMm, m.wys * punktowNaMm),
                                Qt::white);
    }
    return obraz;
}

TEST_F(FormularzePit, TextsOfAnyLengthStayInTheirBoxes) {
    constexpr int kPunktow = 4;
    for (const Deklaracja ktora : kWszystkie) {
        WierszDeklaracji d(ktora);
        const auto pusty = uklad(d);
        for (const KolumnaDef& k : d.tabela().kolumny)
            if (k.typ == Typ::Text || k.typ == Typ::Memo)
                d.ustaw(k.nazwa, (k.typ == Typ::Memo ? u"wyjaśnienie różnicy\n"_s : u"WŚ\nQ"_s).repeated(60));
        const auto pelny = uklad(d);
        for (const int strona : {0, 1}) {
            const QImage dozwolone =
                polaStrony(StronyFormularza(ktora).at(static_cast<std::size_t>(strona)), kPunktow);
            const QImage bez = obrazStrony(*pusty, strona, kPunktow),
                         z = obrazStrony(*pelny, strona, kPunktow);
            int obce = 0, swoje = 0;
            for (int y = 0; y < z.height(); ++y)
                for (int x = 0; x < z.width(); ++x)
                    if (bez.constScanLine(y)[x] != z.constScanLine(y)[x])
                        ++(dozwolone.constScanLine(y)[x] > 0 ? swoje : obce);
            EXPECT_EQ(obce, 0) << "form " << static_cast<int>(ktora) << ", page " << strona + 1;
            EXPECT_GT(swoje, 500);
        }
    }
}

TEST_F(FormularzePit, ALongSeriesMakesADeclarationWhenItsPageIsDrawn) {
    constexpr int kIle = 10'000;
    QList<int> zrobione;
    const auto seria = UlozDeklaracje({Deklaracja::Pit11, kIle, [&](int nr) {
                                           zrobione.append(nr);
                                           WierszDeklaracji d(Deklaracja::Pit11);
                                           d.ustaw("Nazwisko", u"Osoba%1"_s.arg(nr));
                                           return d;
                                       }});
    EXPECT_EQ(seria->stron(), 2 * kIle);
    EXPECT_TRUE(zrobione.isEmpty());
    EXPECT_TRUE(seria->zawiera(2 * 7777, u"Osoba7777"_s));
    EXPECT_TRUE(seria->zawiera(2 * 7777 + 1, u"strona 2"_s));
    EXPECT_TRUE(seria->zawiera(0, u"Osoba0"_s));
    EXPECT_EQ(zrobione, (QList<int>{7777, 0})) << "both pages from one making";
}

} // namespace

} // namespace tornel::testy
