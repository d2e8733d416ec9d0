// Pages drawn by a painter: on screen, on a printer, into PDF and pictures.
#pragma once
#include "druk/Plotno.h"
#include <memory>
#include <QHash>

class QPainter;
class QSvgRenderer;

namespace tornel::druk {

class PlotnoMalarza final : public Plotno {
public:
    /// The painter's coordinates are those of `Pisma.h`: `kJednostekWMm` to a millimetre, from the paper's
    /// corner.
    explicit PlotnoMalarza(QPainter& malarz);
    ~PlotnoMalarza() override;

    void tekst(const Miejsce& m, const QString& tekst, Pismo pismo, Ulozenie ulozenie) override;
    void linia(const Miejsce& m, bool przerywana) override;
    void ramka(const Miejsce& m) override;
    void obraz(const Miejsce& m, const QString& zasob) override;

private:
    void ustawPismo(Pismo rola);

    QPainter& malarz_;
    int pismo_ = -1;
    QHash<QString, std::shared_ptr<QSvgRenderer>> obrazy_;
};

} // namespace tornel::druk
