// "Wydruki dla ZUS": which documents the insurer's collection is made of, and making it.
#pragma once
#include "okna/Okno.h"
#include "zus/PrzygotowanieKedu.h"
#include <array>
#include <functional>

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace tornel::zus {

/// Where the screen leads, given by the caller. A member may be empty.
struct PortKedu {
    /// A file to write; `folder`: where the choice begins. The system's dialog without it.
    std::function<std::optional<QString>(QWidget* rodzic, const QString& folder)> wybierzPlik = {};
    /// Opens the place where the clerk mends a remark.
    std::function<void(const UwagaKedu& uwaga, QWidget* rodzic)> popraw = {};
    /// Shows a collection; an empty path lets the clerk choose one.
    std::function<void(const QString& plik, QWidget* rodzic)> pokaz = {};
};

class frmWydrukiZUS : public Okno, private PytaniaKedu {
    Q_OBJECT
public:
    explicit frmWydrukiZUS(Otoczenie& otoczenie, PortKedu port = {}, QWidget* rodzic = nullptr);

    void done(int wynik) override;

protected:
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    [[nodiscard]] QWidget* ramka(const QString& tytul, std::initializer_list<KodKedu> kody);
    [[nodiscard]] QWidget* wiersz(KodKedu kod);
    [[nodiscard]] QWidget* podpowiedz();
    [[nodiscard]] QWidget* rzad();
    /// Every selection as the controls show it; a control that is disabled chooses nothing.
    [[nodiscard]] bool JakieDokumenty(WyborDokumentow& wybor) const;
    void WczytajUstawienia();
    void ZapiszUstawienia();
    void poprawTyp(QLineEdit& pole);
    /// How many of each there are, and when each was last written.
    void pokazStany();
    void StworzPlik();

    [[nodiscard]] std::optional<QString> plik(const QString& folder) override;
    [[nodiscard]] std::optional<qint64> pracownik() override;
    [[nodiscard]] std::optional<QDate> dzien(const QString& pytanie) override;
    [[nodiscard]] std::optional<RokMies> miesiac(const QString& pytanie) override;
    [[nodiscard]] bool mimoUwag(const std::function<QList<UwagaKedu>()>& sprawdz) override;

    /// The control of one document.
    struct WierszDokumentu {
        QCheckBox* znak = nullptr; ///< of all but ZPA and ZFA
        QLineEdit* typ = nullptr;  ///< of these two
        QLabel* stan = nullptr;
    };

    Otoczenie& o_;
    PortKedu port_;
    std::array<WierszDokumentu, kDokumentow> wiersze_;
    QFrame* picTips_ = nullptr;
    QLabel* labZapisano_ = nullptr;
    QPushButton *Command2_ = nullptr, *cmdPodglad_ = nullptr;
    QString zapisany_; ///< path of the collection made last
};

} // namespace tornel::zus
