#include "okna/frmPytania.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tornel::okna {

namespace {

constexpr int kSzerokoscPytan = 72 * Wyglad::kSiatka;
constexpr int kWciecie = 3 * Wyglad::kSiatka;
constexpr int kNajwyzsza = 80 * Wyglad::kSiatka;

} // namespace

frmPytania::frmPytania(const QString& tytul, const QList<PytanieAkcji>& pytania, QWidget* rodzic)
    : Okno(QStringLiteral("frmPytania"), rodzic),
      cmdDalej_(przycisk(QStringLiteral("cmdDalej"), QStringLiteral("&Dalej"))) {
    setWindowTitle(tytul);
    auto* lista = new QWidget;
    auto* pionowo = new QVBoxLayout(lista);
    for (const PytanieAkcji& p : pytania)
        pionowo->addWidget(wiersz(p, static_cast<int>(wiersze_.size()) + 1));
    pionowo->addStretch();
    auto* przewijanie = new QScrollArea;
    przewijanie->setWidget(lista);
    przewijanie->setWidgetResizable(true);
    przewijanie->setFrameShape(QFrame::NoFrame);
    przewijanie->setFocusPolicy(Qt::NoFocus);
    przewijanie->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    QPushButton* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdDalej_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(przewijanie, 1);
    uklad->addWidget(rzadPrzyciskow({cmdDalej_, cmdAnuluj}));
    cmdAnuluj->setAutoDefault(false);
    cmdDalej_->setDefault(true);
    lista->setFixedWidth(kSzerokoscPytan);
    const int wysokosc = lista->layout()->heightForWidth(kSzerokoscPytan);
    lista->setMinimumWidth(0);
    lista->setMaximumWidth(QWIDGETSIZE_MAX);
    resize(kSzerokoscPytan + 4 * Wyglad::kSiatka,
           std::min(kNajwyzsza, std::max(wysokosc, lista->sizeHint().height()) + 9 * Wyglad::kSiatka));
    ustawDostepnosc();
    if (!wiersze_.empty()) wiersze_.front().tak->setFocus();
}

QWidget* frmPytania::wiersz(const PytanieAkcji& pytanie, int nr) {
    auto* ramka = new QWidget;
    ramka->setObjectName(QStringLiteral("pytanie(%1)").arg(nr));
    auto* tekst = new QLabel(QString(pytanie.tekst).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    tekst->setTextFormat(Qt::PlainText);
    tekst->setWordWrap(true);
    auto* tak = new QRadioButton(QStringLiteral("Tak"));
    auto* nie = new QRadioButton(QStringLiteral("Nie"));
    tak->setObjectName(QStringLiteral("optTak(%1)").arg(nr));
    nie->setObjectName(QStringLiteral("optNie(%1)").arg(nr));
    for (QRadioButton* opcja : {tak, nie}) {
        opcja->setAccessibleDescription(pytanie.tekst);
        opcja->installEventFilter(this);
        connect(opcja, &QRadioButton::toggled, this, &frmPytania::ustawDostepnosc);
    }
    auto* uklad = new QHBoxLayout(ramka);
    uklad->setContentsMargins(pytanie.zalezneOd >= 0 ? kWciecie : 0, 0, 0, Wyglad::kSiatka);
    uklad->addWidget(tekst, 1);
    uklad->addWidget(tak);
    uklad->addWidget(nie);
    wiersze_.push_back({ramka, tak, nie, pytanie.zalezneOd});
    return ramka;
}

bool frmPytania::czynne(const Wiersz& wiersz) const {
    if (wiersz.zalezneOd < 0) return true;
    const Wiersz& warunek = wiersze_[static_cast<std::size_t>(wiersz.zalezneOd)];
    return czynne(warunek) && warunek.tak->isChecked();
}

void frmPytania::ustawDostepnosc() {
    for (const Wiersz& w : wiersze_) w.ramka->setEnabled(czynne(w));
    cmdDalej_->setEnabled(std::ranges::all_of(wiersze_, [this](const Wiersz& w) {
        return !czynne(w) || w.tak->isChecked() || w.nie->isChecked();
    }));
}

QList<bool> frmPytania::odpowiedzi() const {
    QList<bool> wynik;
    for (const Wiersz& w : wiersze_) wynik.append(czynne(w) && w.tak->isChecked());
    return wynik;
}

void frmPytania::odpowiedz(std::size_t nr, QRadioButton* wybrana) {
    wybrana->setChecked(true);
    const auto nastepny = std::find_if(wiersze_.begin() + static_cast<std::ptrdiff_t>(nr) + 1, wiersze_.end(),
                                       [this](const Wiersz& w) { return czynne(w); });
    if (nastepny != wiersze_.end())
        nastepny->tak->setFocus(Qt::TabFocusReason);
    else
        cmdDalej_->setFocus(Qt::TabFocusReason);
}

bool frmPytania::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() != QEvent::KeyPress) return Okno::eventFilter(obiekt, zdarzenie);
    const int klawisz = static_cast<QKeyEvent*>(zdarzenie)->key();
    if (klawisz != Qt::Key_T && klawisz != Qt::Key_N) return Okno::eventFilter(obiekt, zdarzenie);
    for (std::size_t nr = 0; nr < wiersze_.size(); ++nr) {
        const Wiersz& w = wiersze_[nr];
        if (w.tak != obiekt && w.nie != obiekt) continue;
        odpowiedz(nr, klawisz == Qt::Key_T ? w.tak : w.nie);
        return true;
    }
    return false;
}

} // namespace tornel::okna
