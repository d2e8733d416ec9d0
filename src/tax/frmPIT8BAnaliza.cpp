#include "tax/frmPIT8BAnaliza.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "contracts/SumyUmow.h"
#include "okna/frmZakresMies.h"
#include "okna/PoleMiesiaca.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tornel::tax {

namespace {

/// The tables in the order of the list, with what each is called there.
constexpr std::pair<QStringView, QStringView> kTabeleUmow[] = {
    {u"UZL", u"umowa zlecenie"}, {u"UOD", u"umowa o dzieło"}, {u"HON", u"honorarium"}};

} // namespace

frmPIT8BAnaliza::frmPIT8BAnaliza(Otoczenie& otoczenie, qint64 prcId, int rok, QWidget* rodzic)
    : Okno(QStringLiteral("frmPIT8BAnaliza"), rodzic), o_(otoczenie), prcId_(prcId),
      zakres_(new PolaZakresu({rok, 1}, {rok, 12})),
      lvwUmowy_(new WidokListy({{QStringLiteral("RODZAJ")},
                                {QStringLiteral("NUMER")},
                                {QStringLiteral("WYPŁACONA"), Qt::AlignLeft, Porzadek::Data},
                                {QStringLiteral("BRUTTO"), Qt::AlignRight},
                                {QStringLiteral("KOSZTY"), Qt::AlignRight},
                                {QStringLiteral("PODATEK"), Qt::AlignRight}},
                               {22, 16, 17, 16, 15, 14})),
      labSumy_(new QLabel) {
    setWindowTitle(QStringLiteral("PIT-8B - analiza umów i honorariów"));
    lvwUmowy_->setObjectName(QStringLiteral("lvwUmowy"));
    lvwUmowy_->setAccessibleName(QStringLiteral("Umowy i honoraria"));
    lvwUmowy_->ustawPodpowiedz(QStringLiteral(
        "W tych miesiącach nie ma wypłat z umów.\nUmowa bez daty wypłaty nie wchodzi do deklaracji."));
    labSumy_->setObjectName(QStringLiteral("labSumy"));
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(zakres_);
    uklad->addWidget(lvwUmowy_, 1);
    uklad->addWidget(labSumy_);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&Dalej")));
    resize(96 * Wyglad::kSiatka, 60 * Wyglad::kSiatka);
    for (QComboBox* pole : zakres_->findChildren<QComboBox*>())
        connect(pole, &QComboBox::currentIndexChanged, this, &frmPIT8BAnaliza::wczytaj);
    for (QSpinBox* pole : zakres_->findChildren<QSpinBox*>())
        connect(pole, &QSpinBox::valueChanged, this, &frmPIT8BAnaliza::wczytaj);
    wczytaj();
}

OkresPodatkowy frmPIT8BAnaliza::okres() const { return {zakres_->od(), zakres_->dokad()}; }

void frmPIT8BAnaliza::accept() {
    if (zakres_->poprawny(o_.rozmowa)) Okno::accept();
}

void frmPIT8BAnaliza::wczytaj() {
    QList<WierszListy> wiersze;
    SumyKwot razem;
    for (const auto& [tabela, nazwa] : kTabeleUmow)
        for (const ZaplaconaUmowa& u :
             ZaplaconeUmowy(o_.sesja, *ZnajdzRodzajUmowy(tabela.toString()), zakres_->od().pierwszyDzien(),
                            zakres_->dokad().ostatniDzien(), prcId_)) {
            razem += u.kwoty;
            wiersze.append({wiersze.size(),
                            {nazwa.toString(), u.numer, FormatDaty(u.zaplacona), FormatKwoty(u.kwoty.brutto),
                             FormatKwoty(u.kwoty.koszty), FormatKwoty(u.kwoty.podatek)}});
        }
    lvwUmowy_->ustaw(wiersze);
    labSumy_->setText(
        QStringLiteral("Wypłat: %1,  brutto %2,  koszty %3,  podatek %4")
            .arg(wiersze.size())
            .arg(FormatKwoty(razem.brutto), FormatKwoty(razem.koszty), FormatKwoty(razem.podatek)));
}

} // namespace tornel::tax
