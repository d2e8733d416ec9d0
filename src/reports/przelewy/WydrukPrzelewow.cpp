#include "reports/przelewy/WydrukPrzelewow.h"
#include "common/Slownie.h"
#include "druk/Formularz.h"
#include <algorithm>

namespace tornel::reports {

namespace {

/// The fields of a row: the columns of `PRZELEW`, and what follows from them.
enum PolePrzelewu {
    Odbiorca,
    OdbiorcaCd,
    LiczbaKontrolna,
    RachunekOdbiorcy1,
    RachunekOdbiorcy2,
    RachunekOdbiorcy3,
    Waluty,
    KwotaPrzelewu,
    KwotaSlownie,
    RachunekZleceniodawcy,
    Zleceniodawca,
    ZleceniodawcaCd,
    Tytul,
    TytulCd,
};

constexpr double kLewy = 2.5, kSzerPola = 171, kWysPola = 6; // mm, of the lines that go across the form

constexpr NapisFormularza napisPola(double x, double y, QStringView tekst, double szer = 100) {
    return {{x, y, szer, 2.4}, tekst};
}

constexpr NapisFormularza kNapisy[] = {
    {{0, 2.2, 90, 5}, u"POLECENIE PRZELEWU", Pismo::Tytul},
    napisPola(1.2, 9.6, u"nazwa odbiorcy"),
    napisPola(1.2, 19.6, u"nazwa odbiorcy cd."),
    napisPola(2, 29.8, u"l.k.", 10),
    napisPola(14.2, 29.8, u"nr banku", 35),
    napisPola(52.8, 29.8, u"nr rachunku odbiorcy"),
    napisPola(2, 40.8, u"nr rachunku odbiorcy cd."),
    napisPola(112.8, 40.8, u"waluta", 17),
    napisPola(131.8, 40.8, u"kwota", 40),
    napisPola(1.2, 51.6, u"kwota słownie"),
    napisPola(1.2, 61.6, u"nr rachunku zleceniodawcy"),
    napisPola(1.2, 71.6, u"nazwa zleceniodawcy"),
    napisPola(1.2, 81.6, u"nazwa zleceniodawcy cd."),
    napisPola(1.2, 91.6, u"tytułem"),
    napisPola(1.2, 101.6, u"tytułem cd."),
    napisPola(1.2, 111.6, u"pieczęć, data i podpis(y) zleceniodawcy", 86),
    napisPola(89.2, 111.6, u"stempel, data i podpis banku", 86),
};

/// In the order of reading; the lines of the picture are in data/formularze/przelew.svg.
constexpr PoleFormularza kPola[] = {
    {Odbiorca, {kLewy, 12.6, kSzerPola, kWysPola}},
    {OdbiorcaCd, {kLewy, 22.6, kSzerPola, kWysPola}},
    wKratkach(LiczbaKontrolna, {2, 33, 8.8, 5.8}, 2),
    wKratkach(RachunekOdbiorcy1, {14.2, 33, 35.2, 5.8}, 8),
    wKratkach(RachunekOdbiorcy2, {52.8, 33, 105.6, 5.8}, 24),
    wKratkach(RachunekOdbiorcy3, {2, 44, 105.6, 5.8}, 24),
    {Waluty, {112.8, 43.8, 17.4, 6.2}, Format::Tekst, Ulozenie::Srodek},
    {KwotaPrzelewu, {133, 43.8, 40.6, 6.2}, Format::Kwota, Ulozenie::Prawo, Pismo::Podtytul},
    {KwotaSlownie, {kLewy, 54.6, kSzerPola, kWysPola}},
    {RachunekZleceniodawcy, {kLewy, 64.6, kSzerPola, kWysPola}},
    {Zleceniodawca, {kLewy, 74.6, kSzerPola, kWysPola}},
    {ZleceniodawcaCd, {kLewy, 84.6, kSzerPola, kWysPola}},
    {Tytul, {kLewy, 94.6, kSzerPola, kWysPola}},
    {TytulCd, {kLewy, 104.6, kSzerPola, kWysPola}},
};

constexpr Formularz kPrzelew{u":/formularze/przelew.svg", 186, 128, kNapisy, kPola};

constexpr double kOdKrawedzi = 12, kPierwszy = 10.25, kPolowaArkusza = 148.5;

/// Whose copy it is, 1 to 4.
constexpr QStringView kOdcinki[] = {
    u"1 z 4 - odcinek dla banku zleceniodawcy",
    u"2 z 4 - odcinek dla zleceniodawcy",
    u"3 z 4 - odcinek dla banku odbiorcy",
    u"4 z 4 - odcinek dla odbiorcy",
};

class WierszePrzelewow final : public WierszeDruku {
public:
    explicit WierszePrzelewow(QList<Przelew> przelewy) : przelewy_(std::move(przelewy)) {}
    [[nodiscard]] int ile() const override { return static_cast<int>(przelewy_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override {
        const Przelew& p = przelewy_.at(wiersz);
        switch (nr) {
        case Odbiorca:
            return p.nazodb;
        case OdbiorcaCd:
            return p.nazodbcd;
        case LiczbaKontrolna:
            return p.LK;
        case RachunekOdbiorcy1:
            return p.nrrachodb1;
        case RachunekOdbiorcy2:
            return p.nrrachodb2;
        case RachunekOdbiorcy3:
            return p.nrrachodb3;
        case Waluty:
            return QStringLiteral("PLN");
        case KwotaPrzelewu:
            return p.Kwota;
        case KwotaSlownie:
            return SlownieKwota(p.Kwota);
        case RachunekZleceniodawcy:
            return p.NrRachZlec;
        case Zleceniodawca:
            return p.nazzlec;
        case ZleceniodawcaCd:
            return p.nazzleccd;
        case Tytul:
            return p.Tytulem;
        case TytulCd:
            return p.tytulemcd;
        default:
            return {};
        }
    }

private:
    QList<Przelew> przelewy_;
};

/// The copy `nr`, 1 to 4, on the upper or the lower half of the sheet.
FormularzNaStronie odcinek(int nr) {
    const double y = kPierwszy + (nr % 2 == 0 ? kPolowaArkusza : 0);
    return {&kPrzelew,
            kOdKrawedzi,
            y,
            {{{90, 3.4, 96, 4.4}, kOdcinki[nr - 1], Pismo::Formularz, Ulozenie::Prawo}}};
}

} // namespace

std::shared_ptr<const Uklad> UlozPrzelewy(const QList<Przelew>& przelewy, UkladPrzelewu uklad) {
    const auto ktory = std::ranges::find(UkladyPrzelewu, uklad, &OpisUkladuPrzelewu::uklad);
    OpisWydruku opis;
    opis.nazwa = QStringLiteral("przelewy");
    opis.tytul = ktory->opis.toString();
    opis.nazwyPol = {QStringLiteral("nazodb"),
                     QStringLiteral("nazodbcd"),
                     QStringLiteral("LK"),
                     QStringLiteral("nrrachodb1"),
                     QStringLiteral("nrrachodb2"),
                     QStringLiteral("nrrachodb3"),
                     QString(),
                     QStringLiteral("Kwota"),
                     QString(),
                     QStringLiteral("NrRachZlec"),
                     QStringLiteral("nazzlec"),
                     QStringLiteral("nazzleccd"),
                     QStringLiteral("Tytulem"),
                     QStringLiteral("tytulemcd")};
    const int pierwszy = uklad == UkladPrzelewu::Przelew2 ? 3 : 1;
    const bool oryginal = uklad == UkladPrzelewu::Oryginal;
    ulozFormularze(opis, {{odcinek(pierwszy), odcinek(pierwszy + 1)}}, oryginal ? Tlo::Oryginal : Tlo::Obraz);
    if (!oryginal)
        opis.arkusze[0][0].elementy.append({.rodzaj = Element::Rodzaj::Przerywana,
                                            .miejsce = {kOdKrawedzi, kPolowaArkusza, kPrzelew.szer, 0}});
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszePrzelewow>(przelewy));
}

} // namespace tornel::reports
