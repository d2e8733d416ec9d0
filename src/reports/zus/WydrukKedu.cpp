#include "reports/zus/WydrukKedu.h"
#include "druk/Tabela.h"
#include <QFileInfo>

namespace tornel::reports {

namespace {

enum PoleKolekcji : int { NrDokumentu, TytulDokumentu, NrBloku, TytulBloku, NapisPola, WartoscPola };

/// One line of the print: a filled field, or a block without any.
struct LiniaKolekcji {
    int dokument = 0, blok = 0, pole = -1;
};

class WierszeKolekcji final : public WierszeDruku {
public:
    explicit WierszeKolekcji(std::shared_ptr<const OdczytKedu> kolekcja) : kolekcja_(std::move(kolekcja)) {
        const auto& dokumenty = kolekcja_->dokumenty();
        for (int d = 0; d < dokumenty.size(); ++d)
            for (int b = 0; b < dokumenty.at(d).bloki.size(); ++b) {
                const QList<PoleOdczytane> pola = kolekcja_->pola(dokumenty.at(d).bloki.at(b));
                bool wypelnione = false;
                for (int p = 0; p < pola.size(); ++p) {
                    if (pola.at(p).puste || pola.at(p).wartosc.isEmpty()) continue;
                    linie_.push_back({d, b, p});
                    wypelnione = true;
                }
                if (!wypelnione) linie_.push_back({d, b, -1});
            }
    }
    [[nodiscard]] int ile() const override { return static_cast<int>(linie_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override {
        const LiniaKolekcji& l = linie_.at(static_cast<std::size_t>(wiersz));
        const DokumentOdczytany& d = kolekcja_->dokumenty().at(l.dokument);
        const BlokOdczytany& b = d.bloki.at(l.blok);
        switch (nr) {
        case NrDokumentu:
            return qint64(l.dokument);
        case TytulDokumentu: {
            const QString kto = kolekcja_->osoba(d);
            return QStringLiteral("ZUS %1  %2").arg(d.kod, kto.isEmpty() ? d.opis : kto);
        }
        case NrBloku:
            return qint64(l.blok);
        case TytulBloku: {
            const QString kto = kolekcja_->osoba(b);
            return QStringLiteral("%1  %2").arg(b.nazwa, kto.isEmpty() ? b.opis : kto);
        }
        default:
            break;
        }
        if (l.pole < 0) return nr == NapisPola ? QStringLiteral("(niewypełniony)") : QString();
        const PoleOdczytane& p = polaBloku(l).at(l.pole);
        return nr == NapisPola ? p.napis : p.wartosc;
    }

private:
    /// Rows are asked for one after the other, so the block of the last one is kept.
    [[nodiscard]] const QList<PoleOdczytane>& polaBloku(const LiniaKolekcji& l) const {
        if (l.dokument != dokument_ || l.blok != blok_) {
            pola_ = kolekcja_->pola(kolekcja_->dokumenty().at(l.dokument).bloki.at(l.blok));
            dokument_ = l.dokument;
            blok_ = l.blok;
        }
        return pola_;
    }

    std::shared_ptr<const OdczytKedu> kolekcja_;
    std::vector<LiniaKolekcji> linie_;
    mutable QList<PoleOdczytane> pola_;
    mutable int dokument_ = -1, blok_ = -1;
};

Pasmo naglowekGrupy(int grupa, double wys, int pole, Pismo pismo, double x, double szer) {
    return {.rola = Rola::NaglowekGrupy,
            .wys = wys,
            .elementy = {{.rodzaj = Element::Rodzaj::Pole,
                          .miejsce = {x, wys - 5, szer - x, 5},
                          .pole = pole,
                          .pismo = pismo}},
            .grupa = grupa,
            .powtarzaj = grupa == 0};
}

} // namespace

std::shared_ptr<const Uklad> UlozKedu(std::shared_ptr<const OdczytKedu> kolekcja, const QString& plik) {
    OpisWydruku opis{.nazwa = QStringLiteral("kedu"), .tytul = QStringLiteral("Kolekcja dokumentów ZUS")};
    const double szer = opis.strona.szerTresci();
    const double wciecie = 8, kolumna = 96;
    opis.grupy = {NrDokumentu, NrBloku};
    opis.nazwyPol = {QStringLiteral("NR_DOKUMENTU"), QStringLiteral("DOKUMENT"), QStringLiteral("NR_BLOKU"),
                     QStringLiteral("BLOK"),         QStringLiteral("POLE"),     QStringLiteral("WARTOSC")};
    opis.brakWierszy = QStringLiteral("W pliku nie ma dokumentów.");
    opis.arkusze = {{naglowekWydruku(opis.strona, {}, opis.tytul, QFileInfo(plik).fileName()),
                     naglowekGrupy(0, 8, TytulDokumentu, Pismo::Podtytul, 0, szer),
                     naglowekGrupy(1, 6, TytulBloku, Pismo::Wazne, wciecie / 2, szer),
                     {.rola = Rola::Wiersz,
                      .wys = 4.5,
                      .elementy = {{.rodzaj = Element::Rodzaj::Pole,
                                    .miejsce = {wciecie, 0, kolumna - wciecie - 2, 4.5},
                                    .pole = NapisPola},
                                   {.rodzaj = Element::Rodzaj::Pole,
                                    .miejsce = {kolumna, 0, szer - kolumna, 4.5},
                                    .pole = WartoscPola}}},
                     stopkaStrony(opis.strona, opis.tytul)}};
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeKolekcji>(std::move(kolekcja)));
}

} // namespace tornel::reports
