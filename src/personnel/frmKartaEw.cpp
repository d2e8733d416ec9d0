#include "personnel/frmKartaEw.h"
#include "common/Liczby.h"
#include "okna/Klepsydra.h"
#include "okna/PoleMiesiaca.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "personnel/KartaEwidencji.h"
#include "rules/Stale.h"
#include <QAbstractTableModel>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>
#include <utility>

namespace tornel::personnel {

namespace {

constexpr int kDniTabeli = 31, kMiesiecyTabeli = 12;
constexpr int kSzerDnia = 3 * Wyglad::kSiatka, kSzerSumyDni = 5 * Wyglad::kSiatka;

} // namespace

/// Twelve months and their sums; the days, then the kinds.
class ModelKarty : public QAbstractTableModel {
public:
    ModelKarty(const Stale& stale, QObject* rodzic) : QAbstractTableModel(rodzic), stale_(stale) {}

    void ustaw(const KartaRoku& karta) {
        beginResetModel();
        karta_ = karta;
        endResetModel();
    }
    [[nodiscard]] const KartaRoku& karta() const { return karta_; }

    [[nodiscard]] int rowCount(const QModelIndex& rodzic = {}) const override {
        return rodzic.isValid() ? 0 : kMiesiecyTabeli + 1;
    }
    [[nodiscard]] int columnCount(const QModelIndex& rodzic = {}) const override {
        return rodzic.isValid() ? 0 : kDniTabeli + kRodzajowDni;
    }
    [[nodiscard]] QVariant data(const QModelIndex& indeks, int rola) const override {
        const bool suma = indeks.column() >= kDniTabeli, razem = indeks.row() == kMiesiecyTabeli;
        const auto rodzaj = suma    ? static_cast<DzienPracy>(indeks.column() - kDniTabeli)
                            : razem ? DzienPracy::Roboczy
                                    : dzien(indeks);
        switch (rola) {
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
        case Qt::FontRole: {
            QFont pismo = QApplication::font();
            pismo.setBold(razem || (!suma && rodzaj > DzienPracy::Wolny));
            return pismo;
        }
        case Qt::BackgroundRole:
            if (!suma && !razem && rodzaj == DzienPracy::Wolny)
                return QApplication::palette().brush(QPalette::AlternateBase);
            return {};
        case Qt::ToolTipRole:
            if (!suma && !razem && rodzaj != DzienPracy::Brak) return NazwaDniaPracy(rodzaj);
            return {};
        case Qt::DisplayRole:
            break;
        default:
            return {};
        }
        if (!suma) return razem ? QString() : SymbolDnia(stale_, rodzaj);
        const int ile = razem ? karta_.ile(rodzaj) : karta_.miesiac(indeks.row() + 1).ile(rodzaj);
        return ile > 0 || razem ? QString::number(ile) : QString();
    }
    [[nodiscard]] QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override {
        const bool suma = sekcja >= kDniTabeli;
        if (kierunek == Qt::Horizontal && rola == Qt::ToolTipRole && suma)
            return NazwaDniaPracy(static_cast<DzienPracy>(sekcja - kDniTabeli));
        if (rola != Qt::DisplayRole) return QAbstractTableModel::headerData(sekcja, kierunek, rola);
        if (kierunek == Qt::Vertical)
            return sekcja < kMiesiecyTabeli ? NazwaMiesiaca(sekcja + 1) : QStringLiteral("Razem");
        return suma ? SkrotDniaPracy(static_cast<DzienPracy>(sekcja - kDniTabeli))
                    : QString::number(sekcja + 1);
    }

private:
    [[nodiscard]] DzienPracy dzien(const QModelIndex& indeks) const {
        return karta_.miesiac(indeks.row() + 1).dni.at(static_cast<std::size_t>(indeks.column()));
    }

    const Stale& stale_;
    KartaRoku karta_;
};

frmKartaEw::frmKartaEw(Otoczenie& otoczenie, const QList<Osoba>& osoby, qint64 wybrany, int rok,
                       PortWydrukowKadr wydruki, QWidget* rodzic)
    : Okno(QStringLiteral("frmKartaEw"), rodzic), o_(otoczenie), wydruki_(std::move(wydruki)),
      cboPracownik_(new QComboBox), spnRok_(new QSpinBox), labLegenda_(new QLabel),
      model_(new ModelKarty(otoczenie.stale, this)) {
    setWindowTitle(QStringLiteral("Karta ewidencji czasu pracy"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(gora(osoby, rok));
    uklad->addWidget(tabela(), 1);
    labLegenda_->setObjectName(QStringLiteral("labLegenda"));
    labLegenda_->setWordWrap(true);
    uklad->addWidget(labLegenda_);
    uklad->addWidget(rzad());
    resize(158 * Wyglad::kSiatka, 70 * Wyglad::kSiatka);
    cboPracownik_->setCurrentIndex(std::max(0, cboPracownik_->findData(wybrany)));
    connect(cboPracownik_, &QComboBox::currentIndexChanged, this, &frmKartaEw::pokaz);
    connect(spnRok_, &QSpinBox::valueChanged, this, &frmKartaEw::pokaz);
    pokaz();
    spnRok_->setFocus();
}

frmKartaEw::~frmKartaEw() = default;

QWidget* frmKartaEw::gora(const QList<Osoba>& osoby, int rok) {
    cboPracownik_->setObjectName(QStringLiteral("cboPracownik"));
    for (const Osoba& o : osoby)
        cboPracownik_->addItem(
            FormatNumeru(o.prcId) + QStringLiteral("  ") + o.nazwisko + QLatin1Char(' ') + o.imie, o.prcId);
    cboPracownik_->setMinimumContentsLength(30);
    spnRok_->setObjectName(QStringLiteral("spnRok"));
    spnRok_->setRange(PoleMiesiaca::kPierwszyRok, PoleMiesiaca::kOstatniRok);
    spnRok_->setKeyboardTracking(false);
    spnRok_->setValue(rok);
    auto* wynik = new QWidget;
    auto* obok = new QHBoxLayout(wynik);
    obok->setContentsMargins(0, 0, 0, 0);
    for (const auto& [napis, pole] :
         {std::pair<QString, QWidget*>(QStringLiteral("P&racownik:"), cboPracownik_),
          std::pair<QString, QWidget*>(QStringLiteral("R&ok:"), spnRok_)}) {
        auto* podpis = new QLabel(napis);
        podpis->setBuddy(pole);
        obok->addWidget(podpis);
        obok->addWidget(pole);
        obok->addSpacing(2 * Wyglad::kSiatka);
    }
    obok->addStretch();
    const auto skrot = [this](Qt::Key klawisz, int oIle) {
        connect(new QShortcut(QKeySequence(Qt::CTRL | klawisz), this), &QShortcut::activated, this,
                [this, oIle] { przejdz(oIle); });
    };
    skrot(Qt::Key_Down, 1);
    skrot(Qt::Key_Up, -1);
    cboPracownik_->setToolTip(QStringLiteral("Ctrl+Góra i Ctrl+Dół: poprzedni i następny pracownik"));
    return wynik;
}

QWidget* frmKartaEw::tabela() {
    auto* widok = new QTableView;
    widok->setObjectName(QStringLiteral("tblKarta"));
    widok->setAccessibleName(QStringLiteral("Dni roku"));
    widok->setModel(model_);
    widok->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widok->setTabKeyNavigation(false);
    widok->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QHeaderView& dni = *widok->horizontalHeader();
    dni.setMinimumSectionSize(kSzerDnia);
    dni.setSectionResizeMode(QHeaderView::Fixed);
    for (int k = 0; k < model_->columnCount(); ++k)
        dni.resizeSection(k, k < kDniTabeli ? kSzerDnia : kSzerSumyDni);
    QHeaderView& miesiace = *widok->verticalHeader();
    miesiace.setSectionResizeMode(QHeaderView::Stretch);
    miesiace.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return widok;
}

QWidget* frmKartaEw::rzad() {
    auto* cmdDrukuj = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj");
    auto* cmdWszyscy = przycisk(QStringLiteral("cmdDrukujWszystkich"), QStringLiteral("Drukuj &wszystkich"));
    auto* cmdPowrot = przycisk(QStringLiteral("cmdPowrot"), QStringLiteral("&Powrót"), u"powrot");
    cmdWszyscy->setToolTip(QStringLiteral("Karty osób z listy, zatrudnionych w tym roku"));
    for (QPushButton* p : {cmdDrukuj, cmdWszyscy, cmdPowrot}) p->setAutoDefault(false);
    for (QPushButton* p : {cmdDrukuj, cmdWszyscy})
        p->setEnabled(wydruki_.drukuj && cboPracownik_->count() > 0);
    connect(cmdDrukuj, &QPushButton::clicked, this,
            [this] { drukuj({cboPracownik_->currentData().toLongLong()}); });
    connect(cmdWszyscy, &QPushButton::clicked, this, [this] {
        QList<qint64> numery;
        for (int i = 0; i < cboPracownik_->count(); ++i)
            numery.append(cboPracownik_->itemData(i).toLongLong());
        drukuj(Pracownicy(o_).zatrudnieniSposrod(numery, QDate(spnRok_->value(), 1, 1),
                                                 QDate(spnRok_->value(), 12, 31)));
    });
    connect(cmdPowrot, &QPushButton::clicked, this, &QDialog::reject);
    return rzadPrzyciskow({cmdDrukuj, cmdWszyscy, przyciskPomocy(), cmdPowrot});
}

void frmKartaEw::pokaz() {
    if (cboPracownik_->count() == 0) return;
    const Klepsydra klepsydra;
    model_->ustaw(EwidencjaCzasuPracy(o_, spnRok_->value()).karta(cboPracownik_->currentData().toLongLong()));
    QStringList czesci;
    for (int i = 0; i < kRodzajowDni; ++i) {
        const auto rodzaj = static_cast<DzienPracy>(i);
        const QString symbol = SymbolDnia(o_.stale, rodzaj).trimmed();
        czesci.append((symbol.isEmpty() ? QStringLiteral("pole puste") : symbol) + QStringLiteral(" - ") +
                      NazwaDniaPracy(rodzaj));
    }
    labLegenda_->setText(czesci.join(QStringLiteral(",   ")) +
                         QStringLiteral(",   myślnik - poza zatrudnieniem"));
}

void frmKartaEw::przejdz(int oIle) {
    const int nr = cboPracownik_->currentIndex() + oIle;
    if (nr >= 0 && nr < cboPracownik_->count()) cboPracownik_->setCurrentIndex(nr);
}

void frmKartaEw::drukuj(const QList<qint64>& numery) {
    wydruki_.drukuj(wydruki_.kartaEwidencji, {numery, {spnRok_->value(), 1}, {spnRok_->value(), 12}}, this);
}

} // namespace tornel::personnel
