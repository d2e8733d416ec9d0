#include "personnel/frmDniMiesiaca.h"
#include "common/Daty.h"
#include "okna/PoleTekstu.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace tornel::personnel {

namespace {

constexpr int kDniWKolumnie = 16;
/// Grid columns of one column of days: number, weekday, mark, description, gap.
constexpr int kNaKolumne = 5;
constexpr int kNajdluzszyMiesiac = 31;

QLabel* naglowek(const QString& tekst) {
    auto* napis = new QLabel(tekst);
    napis->setProperty("podpowiedz", true);
    return napis;
}

} // namespace

DniMiesiaca::DniMiesiaca(QWidget* rodzic) : QWidget(rodzic) {
    setObjectName(QStringLiteral("dniMiesiaca"));
    auto* siatka = new QGridLayout(this);
    siatka->setContentsMargins(0, 0, 0, 0);
    siatka->setHorizontalSpacing(Wyglad::kSiatka);
    siatka->setVerticalSpacing(Wyglad::kSiatka / 4);
    for (const int od : {0, kNaKolumne}) {
        naglowki_.append(naglowek(QStringLiteral("Opis")));
        siatka->addWidget(naglowki_.last(), 0, od + 3);
        siatka->setColumnStretch(od + 3, 1);
    }
    siatka->setColumnMinimumWidth(kNaKolumne - 1, Wyglad::kSiatka);
    linie_.reserve(kNajdluzszyMiesiac);
    for (int d = 1; d <= kNajdluzszyMiesiac; ++d) dodajLinie(d);
    siatka->setRowStretch(kDniWKolumnie + 1, 1);
    czysc();
}

void DniMiesiaca::dodajLinie(int dzien) {
    auto* siatka = qobject_cast<QGridLayout*>(layout());
    const QString numer = QString::number(dzien);
    Linia linia{new QLabel(numer), new QLabel, new QCheckBox(QStringLiteral("Wolny")), new PoleTekstu};
    linia.numer->setObjectName(QStringLiteral("labDzien%1").arg(dzien));
    linia.numer->setAlignment(Qt::AlignCenter);
    linia.numer->setFixedWidth(4 * Wyglad::kSiatka);
    linia.nazwa->setObjectName(QStringLiteral("labNazwa%1").arg(dzien));
    // As wide as the longest name in bold, so that the columns stand still from month to month.
    QFont tluste = linia.nazwa->font();
    tluste.setBold(true);
    linia.nazwa->setMinimumWidth(QFontMetrics(tluste).horizontalAdvance(QStringLiteral("Poniedziałek ")));
    linia.wolny->setObjectName(QStringLiteral("chkWolny%1").arg(dzien));
    linia.opis->setObjectName(QStringLiteral("txtOpis%1").arg(dzien));
    linia.opis->setMaxLength(NajdluzszyOpisDnia());
    linia.opis->setMinimumWidth(20 * Wyglad::kSiatka);
    for (QWidget* kontrolka : std::initializer_list<QWidget*>{linia.wolny, linia.opis})
        kontrolka->installEventFilter(this);
    connect(linia.wolny, &QCheckBox::clicked, this, [this, linia] { zmien(linia); });
    connect(linia.opis, &QLineEdit::textEdited, this, [this, linia] { zmien(linia); });

    const int wiersz = (dzien - 1) % kDniWKolumnie + 1;
    const int kolumna = (dzien - 1) / kDniWKolumnie * kNaKolumne;
    siatka->addWidget(linia.numer, wiersz, kolumna);
    siatka->addWidget(linia.nazwa, wiersz, kolumna + 1);
    siatka->addWidget(linia.wolny, wiersz, kolumna + 2);
    siatka->addWidget(linia.opis, wiersz, kolumna + 3);
    linie_.push_back(linia);
}

void DniMiesiaca::pokaz(int rok, int mies, const TrescMiesiaca& tresc) {
    wczytana_ = tresc;
    zmieniona_ = false;
    for (int d = 1; d <= kNajdluzszyMiesiac; ++d) {
        const Linia& linia = linie_[static_cast<std::size_t>(d - 1)];
        const QDate dzienMiesiaca(rok, mies, d);
        linia.nazwa->setText(Nazwa_dnia(dzienMiesiaca));
        Wyglad::oznaczKoniecTygodnia(*linia.nazwa,
                                     dzienMiesiaca.isValid() && dzienMiesiaca.dayOfWeek() >= Qt::Saturday);
        linia.wolny->setChecked(tresc.dni[d] == DniKalendarza::Wolny);
        linia.wolny->setAccessibleName(QStringLiteral("%1, %2, wolny").arg(d).arg(Nazwa_dnia(dzienMiesiaca)));
        linia.opis->setText(tresc.opis(d));
        linia.opis->setCursorPosition(0);
        linia.opis->setToolTip(tresc.opis(d)); // a long one may be wider than its field
        linia.opis->setAccessibleName(QStringLiteral("%1, %2, opis").arg(d).arg(Nazwa_dnia(dzienMiesiaca)));
        pokazZnak(linia);
    }
    pokazLinie(DniWMiesiacu(rok, mies));
}

void DniMiesiaca::czysc() {
    zmieniona_ = false;
    pokazLinie(0);
}

void DniMiesiaca::pokazLinie(int ile) {
    iloscDni_ = ile;
    for (QLabel* naglowekKolumny : naglowki_) naglowekKolumny->setVisible(ile > 0);
    for (int d = 1; d <= kNajdluzszyMiesiac; ++d) {
        const Linia& linia = linie_[static_cast<std::size_t>(d - 1)];
        for (QWidget* w : std::initializer_list<QWidget*>{linia.numer, linia.nazwa, linia.wolny, linia.opis})
            w->setVisible(d <= ile);
    }
}

TrescMiesiaca DniMiesiaca::tresc() const {
    TrescMiesiaca wynik = wczytana_;
    for (int d = 1; d <= iloscDni_; ++d) {
        const Linia& linia = linie_[static_cast<std::size_t>(d - 1)];
        // Only a changed mark is taken over: a day that the record calls missing stays missing.
        if (linia.wolny->isChecked() != (wczytana_.dni[d] == DniKalendarza::Wolny))
            wynik.dni.ustaw(d, linia.wolny->isChecked() ? DniKalendarza::Wolny : DniKalendarza::Roboczy);
        wynik.opis(d) = linia.opis->text();
    }
    return wynik;
}

void DniMiesiaca::wejdz() {
    if (iloscDni_ > 0) linie_.front().wolny->setFocus(Qt::TabFocusReason);
}

void DniMiesiaca::pokazZnak(const Linia& linia) {
    Wyglad::oznaczWolny(*linia.numer, linia.wolny->isChecked());
}

void DniMiesiaca::zmien(const Linia& linia) {
    pokazZnak(linia);
    zmieniona_ = true;
    emit zmienione();
}

int DniMiesiaca::dzien(const QObject* kontrolka) const {
    const auto ta = std::ranges::find_if(
        linie_, [=](const Linia& l) { return l.wolny == kontrolka || l.opis == kontrolka; });
    return ta == linie_.end() ? 0 : static_cast<int>(ta - linie_.begin()) + 1;
}

void DniMiesiaca::przesun(QObject* skad, int oIle) {
    const int tu = dzien(skad);
    const int cel = tu + oIle;
    if (cel < 1 || cel > iloscDni_) return;
    const Linia& linia = linie_[static_cast<std::size_t>(cel - 1)];
    const bool znak = linie_[static_cast<std::size_t>(tu - 1)].wolny == skad;
    QWidget* kontrolka = znak ? static_cast<QWidget*>(linia.wolny) : linia.opis;
    kontrolka->setFocus(Qt::TabFocusReason);
}

bool DniMiesiaca::klawisz(QWidget& kontrolka, QKeyEvent& zdarzenie) {
    const Linia& linia = linie_[static_cast<std::size_t>(dzien(&kontrolka) - 1)];
    const bool znak = linia.wolny == &kontrolka;
    switch (zdarzenie.key()) {
    case Qt::Key_Up:
        return przesun(&kontrolka, -1), true;
    case Qt::Key_Down:
        return przesun(&kontrolka, 1), true;
    case Qt::Key_Left:
        return znak && (przesun(&kontrolka, -kDniWKolumnie), true);
    case Qt::Key_Right:
        return znak && (przesun(&kontrolka, kDniWKolumnie), true);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return focusNextChild(), true;
    default:
        break;
    }
    const QString tekst = zdarzenie.text();
    const bool skrot = (zdarzenie.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    if (!znak || skrot || tekst.isEmpty() || !tekst.front().isLetterOrNumber()) return false;
    linia.opis->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(linia.opis, &zdarzenie);
    return true;
}

bool DniMiesiaca::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() == QEvent::KeyPress && dzien(obiekt) > 0)
        return klawisz(static_cast<QWidget&>(*obiekt), static_cast<QKeyEvent&>(*zdarzenie));
    return QWidget::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::personnel
