// The yearly declarations of the persons chosen: what each still lacks, their sums, and all of them printed
// or in one file.
#pragma once
#include "okna/Okno.h"
#include "tax/SeriaDeklaracji.h"
#include <memory>

class QLabel;
class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::tax {

/// Keys: Enter opens the person's declaration, F5 checks again, Ctrl+P prints all.
class frmSeriaDeklaracji : public Okno {
    Q_OBJECT
public:
    /// Asks where to write, with a proposed name; empty when the clerk gives up.
    using WybierzPlik = std::function<QString(QWidget* rodzic, const QString& nazwa, const QString& filtr)>;
    /// Opens the declaration of one person.
    using OtworzJedna = std::function<void(qint64 prcId, QWidget* rodzic)>;

    frmSeriaDeklaracji(Otoczenie& otoczenie, Deklaracja ktora, const OkresPodatkowy& okres,
                       const QList<qint64>& osoby, PortWydrukowDeklaracji port, OtworzJedna otworz,
                       QWidget* rodzic = nullptr, WybierzPlik wybierz = {});

private:
    void buduj();
    void wczytaj();
    void otworz(qint64 prcId);
    void zapisz(const QString& koncowka, const QString& filtr,
                const std::function<void(const QString& plik)>& pisz);
    void zapiszPdf();
    void zapiszCsv();

    Otoczenie& o_;
    Deklaracja ktora_;
    OkresPodatkowy okres_;
    QList<qint64> osoby_;
    PortWydrukowDeklaracji port_;
    OtworzJedna otworz_;
    WybierzPlik wybierz_;
    std::unique_ptr<SeriaDeklaracji> seria_;
    WidokListy* lvwOsoby_;
    QLabel *labUwagi_, *labSumy_;
    QPushButton *cmdOtworz_, *cmdPdf_, *cmdCSV_, *cmdDrukuj_;
};

} // namespace tornel::tax
