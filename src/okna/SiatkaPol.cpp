#include "okna/SiatkaPol.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

namespace tornel::okna {

namespace {

/// Grid columns of one column of fields: caption, field, gap.
constexpr int kNaKolumne = 3;

} // namespace

SiatkaPol::SiatkaPol(int kolumn, BezPodpisu bezPodpisu, QWidget* rodzic)
    : QWidget(rodzic), kolumn_(std::max(1, kolumn)), bezPodpisu_(bezPodpisu), siatka_(new QGridLayout(this)) {
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
    for (Miejsce& m : miejsca_) {
        m.pojemnik->setVisible(m.widoczne);
        if (m.podpis) m.podpis->setVisible(m.widoczne);
        if (!m.widoczne) continue;
        m.kolumna = nr / wierszy;
        const int kolumna = m.kolumna * kNaKolumne;
        if (m.podpis) siatka_->addWidget(m.podpis, nr % wierszy, kolumna);
        if (!m.podpis && bezPodpisu_ == BezPodpisu::PodPodpisami)
            siatka_->addWidget(m.pojemnik, nr % wierszy, kolumna, 1, 2);
        else
            siatka_->addWidget(m.pojemnik, nr % wierszy, kolumna + 1);
        ++nr;
    }
}

int SiatkaPol::szerokoscPodpisow(int kolumna, int najszersze) {
    int szerokosc = 0;
    for (const Miejsce& m : miejsca_) {
        if (!m.podpis || m.kolumna != kolumna) continue;
        if (m.podpis->sizeHint().width() > najszersze) {
            m.podpis->setWordWrap(true);
            m.podpis->setFixedWidth(najszersze);
        }
        szerokosc = std::max(szerokosc, std::min(m.podpis->sizeHint().width(), najszersze));
    }
    return szerokosc;
}

void SiatkaPol::ustawSzerokoscPodpisow(int kolumna, int szerokosc) {
    siatka_->setColumnMinimumWidth(kolumna * kNaKolumne, szerokosc);
}

void wyrownajPodpisy(const QList<QGroupBox*>& ramki, int najszersze) {
    QList<SiatkaPol*> siatki;
    int kolumn = 0;
    for (const QGroupBox* ramka : ramki)
        for (SiatkaPol* siatka : ramka->findChildren<SiatkaPol*>()) {
            siatki.append(siatka);
            kolumn = std::max(kolumn, siatka->kolumn());
        }
    for (int k = 0; k < kolumn; ++k) {
        QList<SiatkaPol*> zPodpisami;
        int szerokosc = 0;
        for (SiatkaPol* siatka : std::as_const(siatki)) {
            const int tutaj = siatka->szerokoscPodpisow(k, najszersze);
            if (tutaj > 0) zPodpisami.append(siatka);
            szerokosc = std::max(szerokosc, tutaj);
        }
        for (SiatkaPol* siatka : std::as_const(zPodpisami)) siatka->ustawSzerokoscPodpisow(k, szerokosc);
    }
}

} // namespace tornel::okna
