#include "okna/WyborWielu.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::okna {

namespace {

/// The first column stands left, the counts behind it right.
QList<KolumnaListy> kolumnyWyboru(const QStringList& naglowki) {
    QList<KolumnaListy> wynik;
    for (const QString& n : naglowki) wynik.append({n, wynik.isEmpty() ? Qt::AlignLeft : Qt::AlignRight});
    return wynik;
}

} // namespace

WyborWielu::WyborWielu(const OpisWyboru& opis, const QList<QStringList>& wpisy, QWidget* rodzic)
    : Okno(opis.nazwa, rodzic),
      lista_(new WidokListy(kolumnyWyboru(opis.kolumny),
                            opis.kolumny.size() > 1 ? QList<int>{70, 30} : QList<int>{100})),
      labZaznaczono_(new QLabel), ile_(static_cast<int>(wpisy.size())) {
    setWindowTitle(opis.tytul);
    lista_->setObjectName(opis.lista);
    lista_->setAccessibleName(opis.tytul);
    lista_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lista_->ustawPodpowiedz(opis.pustaLista);
    labZaznaczono_->setObjectName(QStringLiteral("labZaznaczono"));
    auto* wskazowka = new QLabel(
        QStringLiteral("Kliknięcie wybiera jedną pozycję, z klawiszem Ctrl dobiera albo pomija następne."));
    wskazowka->setWordWrap(true);
    auto* cmdWszystkie = przycisk(QStringLiteral("cmdWszystkie"), QStringLiteral("&Wszystkie"));
    cmdWszystkie->setAutoDefault(false);
    connect(cmdWszystkie, &QPushButton::clicked, lista_, &QAbstractItemView::selectAll);

    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(wskazowka);
    uklad->addWidget(lista_, 1);
    auto* dol = new QHBoxLayout;
    dol->addWidget(cmdWszystkie);
    dol->addWidget(labZaznaczono_, 1);
    dol->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
    uklad->addLayout(dol);
    cmdOK_ = findChild<QPushButton*>(QStringLiteral("cmdOK"));
    resize(56 * Wyglad::kSiatka, 52 * Wyglad::kSiatka);

    QList<WierszListy> wiersze;
    for (int i = 0; i < ile_; ++i) wiersze.append({i, wpisy[i]});
    lista_->ustaw(std::move(wiersze));
    lista_->selectAll();
    connect(lista_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &WyborWielu::pokazIle);
    connect(lista_, &WidokListy::wejscie, this, &QDialog::accept);
    pokazIle();
    lista_->setFocus();
}

QList<int> WyborWielu::wybrane() const {
    QList<int> wynik;
    for (const qint64 id : lista_->zaznaczeni()) wynik.append(static_cast<int>(id));
    return wynik;
}

bool WyborWielu::wszystkie() const { return wybrane().size() == ile_; }

void WyborWielu::pokazIle() {
    const auto zaznaczono = wybrane().size();
    labZaznaczono_->setText(QStringLiteral("Zaznaczono: %1 z %2").arg(zaznaczono).arg(ile_));
    cmdOK_->setEnabled(zaznaczono > 0);
}

} // namespace tornel::okna
