#include "okna/SiatkaPol.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QGridLayout>
#include <QHBoxLayout>

namespace {

/// Grid columns of one column of fields: caption, field, gap.
constexpr int kNaKolumne = 3;

} // namespace

SiatkaPol::SiatkaPol(int kolumn, QWidget* rodzic)
    : QWidget(rodzic), kolumn_(std::max(1, kolumn)), siatka_(new QGridLayout(this)) {
    siatka_->setContentsMargins(0, 0, 0, 0);
    siatka_->setHorizontalSpacing(Wyglad::kSiatka);
    siatka_->setVerticalSpacing(Wyglad::kSiatka / 2);
    for (int k = 0; k < kolumn_; ++k) {
        siatka_->setColumnStretch(k * kNaKolumne + 1, 1);
        if (k > 0) siatka_->setColumnMinimumWidth(k * kNaKolumne - 1, Wyglad::kSiatka);
    }
}

int SiatkaPol::dodaj(QLabel* podpis, QWidget* pole) {
    auto* pojemnik = new QWidget(this);
    auto* rzad = new QHBoxLayout(pojemnik);
    rzad->setContentsMargins(0, 0, 0, 0);
    if (podpis) podpis->setParent(this);
    miejsca_.push_back({podpis, pojemnik, rzad});
    const int miejsce = static_cast<int>(miejsca_.size()) - 1;
    dolacz(miejsce, pole);
    return miejsce;
}

void SiatkaPol::dolacz(int miejsce, QWidget* pole, QWidget* za) {
    QHBoxLayout* rzad = miejsca_[static_cast<std::size_t>(miejsce)].rzad;
    const bool rosnie = (pole->sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) != 0;
    if (za) return rzad->insertWidget(rzad->indexOf(za) + 1, pole, rosnie ? 100 : 0);
    // The stretch at the end keeps fields of fixed width at their caption.
    if (rzad->count() > 0) delete rzad->takeAt(rzad->count() - 1);
    rzad->addWidget(pole, rosnie ? 100 : 0);
    rzad->addStretch(rosnie ? 0 : 1);
}

void SiatkaPol::pokaz(int miejsce, bool widoczne) {
    miejsca_[static_cast<std::size_t>(miejsce)].widoczne = widoczne;
}

void SiatkaPol::uloz() {
    while (QLayoutItem* pozycja = siatka_->takeAt(0)) delete pozycja;
    const auto widocznych =
        static_cast<int>(std::ranges::count_if(miejsca_, [](const Miejsce& m) { return m.widoczne; }));
    const int wierszy = std::max(1, (widocznych + kolumn_ - 1) / kolumn_);
    int nr = 0;
    for (const Miejsce& m : miejsca_) {
        m.pojemnik->setVisible(m.widoczne);
        if (m.podpis) m.podpis->setVisible(m.widoczne);
        if (!m.widoczne) continue;
        const int kolumna = nr / wierszy * kNaKolumne;
        if (m.podpis) siatka_->addWidget(m.podpis, nr % wierszy, kolumna);
        siatka_->addWidget(m.pojemnik, nr % wierszy, kolumna + 1);
        ++nr;
    }
}
