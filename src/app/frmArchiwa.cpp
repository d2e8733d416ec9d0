#include "app/frmArchiwa.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::app {

frmArchiwa::frmArchiwa(Rozmowa& rozmowa, const QString& bazowy, const QString& baza, QWidget* rodzic)
    : Okno(QStringLiteral("frmArchiwa"), rodzic), rozmowa_(rozmowa), baza_(baza),
      archiwa_(ListaArchiwow(bazowy)),
      lvwArchiwa_(new WidokListy({{QStringLiteral("KATALOG")},
                                  {QStringLiteral("DATA"), Qt::AlignLeft, Porzadek::Data},
                                  {QStringLiteral("GODZINA")},
                                  {QStringLiteral("ROZMIAR"), Qt::AlignRight},
                                  {QStringLiteral("MIESIĄCE"), Qt::AlignRight},
                                  {QStringLiteral("ZAKRES MIESIĘCY")},
                                  {QStringLiteral("PRACOWNICY"), Qt::AlignRight}},
                                 {25, 13, 10, 11, 10, 19, 12})),
      cmdPrzywroc_(przycisk(QStringLiteral("cmdPrzywroc"), QStringLiteral("&Przywróć"))) {
    setWindowTitle(QStringLiteral("Przywróć z archiwum"));
    auto* labFolder = new QLabel(QStringLiteral("Archiwa w katalogu: ") + QDir::toNativeSeparators(bazowy));
    labFolder->setObjectName(QStringLiteral("labFolder"));
    labFolder->setTextFormat(Qt::PlainText);
    labFolder->setWordWrap(true);
    lvwArchiwa_->setObjectName(QStringLiteral("lvwArchiwa"));
    lvwArchiwa_->setAccessibleName(QStringLiteral("Archiwa"));
    lvwArchiwa_->ustawPodpowiedz(QStringLiteral(
        "W tym katalogu nie ma archiwów.\nArchiwum tworzy „Konfiguracja”, „Utwórz archiwum danych”;\nkatalog "
        "wskazuje stała 701."));
    QList<WierszListy> wiersze;
    for (qsizetype i = 0; i < archiwa_.size(); ++i) {
        const OpisArchiwum& a = archiwa_[i];
        wiersze.append({i,
                        {a.katalog, FormatDaty(a.data.date()), a.data.toString(QStringLiteral("HH:mm:ss")),
                         NapisRozmiaru(a.rozmiar), QString::number(a.tresc.miesiecy), NapisMiesiecy(a.tresc),
                         QString::number(a.tresc.pracownikow)},
                        a.uwaga,
                        Waga::Wazna});
    }
    lvwArchiwa_->ustaw(wiersze);
    connect(lvwArchiwa_, &WidokListy::wejscie, this, &QDialog::accept);
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdPrzywroc_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    cmdPrzywroc_->setEnabled(!archiwa_.isEmpty());
    cmdPrzywroc_->setDefault(true);

    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(labFolder);
    uklad->addWidget(lvwArchiwa_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdPrzywroc_, cmdAnuluj, przyciskPomocy()}));
    resize(112 * Wyglad::kSiatka, 52 * Wyglad::kSiatka);
    lvwArchiwa_->setFocus();
}

std::optional<OpisArchiwum> frmArchiwa::wybrane() const {
    const qint64 id = lvwArchiwa_->wybrany();
    return id < 0 ? std::nullopt : std::optional(archiwa_.at(id));
}

void frmArchiwa::accept() {
    const auto archiwum = wybrane();
    if (archiwum && ZgodaNaPrzywrocenie(rozmowa_, *archiwum, baza_)) Okno::accept();
}

} // namespace tornel::app
