#include "reports/deklaracje/WydrukDeklaracji.h"
#include "reports/deklaracje/FormularzePit.h"
#include "tax/DeklaracjeRoczne.h"
#include "tax/Pit4.h"

namespace tornel::reports {

using tax::Deklaracja;
using tax::WierszDeklaracji;

namespace {

/// Makes a declaration when one of its pages is drawn and keeps the last one only.
class WierszeDeklaracji final : public WierszeDruku {
public:
    explicit WierszeDeklaracji(tax::SeriaStron seria) : seria_(std::move(seria)), ostatni_(seria_.ktora) {}

    [[nodiscard]] int ile() const override { return seria_.ile; }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override {
        if (wiersz != nrOstatniego_) {
            ostatni_ = seria_.wiersz(wiersz);
            sumy_ = sumy(ostatni_);
            nrOstatniego_ = wiersz;
        }
        const int kolumn = static_cast<int>(ostatni_.tabela().kolumny.size());
        return nr < kolumn ? wLinii(nr) : Wartosc(sumy_.at(nr - kolumn));
    }

private:
    /// An imported text may hold line breaks, which would lead it out of its box; only a memo has lines.
    [[nodiscard]] Wartosc wLinii(int nr) const {
        const Wartosc& wartosc = ostatni_.wartosc(nr);
        const auto* tekst = std::get_if<QString>(&wartosc);
        if (!tekst || ostatni_.tabela().nr(nr).def().typ == Typ::Memo) return wartosc;
        return tekst->simplified();
    }
    [[nodiscard]] static QList<Waluta> sumy(const WierszDeklaracji& d) {
        if (d.ktora() == Deklaracja::Pit4) {
            const tax::SumyPit4 s = tax::SumyDeklaracji(d);
            return {s.SUMA1, s.SUMA2, s.SUMA3};
        }
        const tax::SumyZrodel s = tax::SumujZrodla(d);
        return {s.SPRZY, s.SKUP, s.SDOCHOD, s.SPOB_ZAL};
    }

    tax::SeriaStron seria_;
    mutable WierszDeklaracji ostatni_;
    mutable QList<Waluta> sumy_;
    mutable int nrOstatniego_ = -1;
};

} // namespace

std::shared_ptr<const Uklad> UlozDeklaracje(const tax::SeriaStron& seria, std::optional<int> strona) {
    const tax::RodzajDeklaracji& rodzaj = tax::OpisDeklaracji(seria.ktora);
    OpisWydruku opis{.nazwa = rodzaj.nazwa.toString().toLower(), .tytul = rodzaj.nazwa.toString()};
    for (const KolumnaDef& k : rodzaj.tabela->kolumny)
        opis.nazwyPol.append(QString::fromLatin1(k.nazwa.data(), static_cast<qsizetype>(k.nazwa.size())));
    for (const std::string_view suma : SumyFormularza(seria.ktora))
        opis.nazwyPol.append(QString::fromLatin1(suma.data(), static_cast<qsizetype>(suma.size())));
    QList<QList<FormularzNaStronie>> strony;
    int nr = 0;
    for (StronaFormularza& s : StronyFormularza(seria.ktora))
        if (++nr == strona.value_or(nr)) strony.append({{&s.formularz(), 12, 12}});
    ulozFormularze(opis, strony, Tlo::Obraz);
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeDeklaracji>(seria));
}

} // namespace tornel::reports
