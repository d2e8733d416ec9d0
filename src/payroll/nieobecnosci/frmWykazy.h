// The screens that open while one row's absences are priced: the lists of averages and the component of a
// vacation period.
#pragma once
#include "okna/Okno.h"
#include "payroll/nieobecnosci/WykazyPodstaw.h"

class QLabel;
class QVBoxLayout;

namespace tornel::okna {
class PoleTekstu;
class WidokListy;
} // namespace tornel::okna

namespace tornel::payroll {

/// Months with their amounts, an average that may be changed, and "Dalej", which is what closing means here.
class frmWykaz : public Okno {
    Q_OBJECT
public:
    /// "Dalej": a text that is no amount is told beside its field first, and counts as none the second time.
    void accept() override;

protected:
    frmWykaz(const QString& nazwa, const QString& tytul, WidokListy* lista, QWidget* rodzic);

    /// The line of the average under the list.
    PoleTekstu* poleSredniej(const QString& nazwa, const QString& podpis, Waluta srednia);
    QVBoxLayout* uklad_;
    WidokListy* lvwMiesiace_;

private:
    PoleTekstu* sredniej_ = nullptr;
};

/// "Wykaz miesięcznych podstaw do L-4".
class frmWykazPodstawL4 : public frmWykaz {
    Q_OBJECT
public:
    frmWykazPodstawL4(const QList<LiniaWykazu>& miesiace, Waluta sredniaBrutto, QWidget* rodzic = nullptr);
    /// What stands in the field; nothing when it is no number.
    [[nodiscard]] std::optional<Waluta> srednia() const;

private:
    PoleTekstu* txtBruttoSr_;
};

/// "Wykaz miesięcznych podstaw do urlopu".
class frmWykazPodstaw : public frmWykaz {
    Q_OBJECT
public:
    frmWykazPodstaw(const QList<LiniaWykazu>& miesiace, qint64 dni, Waluta stawkaDzienna,
                    QWidget* rodzic = nullptr);
    [[nodiscard]] std::optional<Waluta> dniowka() const;

private:
    PoleTekstu* txtDniowka_;
};

/// "Wyliczanie urlopu": which component a vacation period goes to. Rejected, the period is skipped.
class frmNrSkladnikaURL : public Okno {
    Q_OBJECT
public:
    frmNrSkladnikaURL(const OkresUrlopu& okres, int proponowany, QWidget* rodzic = nullptr);
    /// 0 for what is no number from 1 to 30.
    [[nodiscard]] int numer() const;

private:
    PoleTekstu* txtSkl_;
};

/// The port of the calculations, answered on these screens over `rodzic`.
class WykazyOkien : public WykazyPodstaw {
public:
    explicit WykazyOkien(QWidget* rodzic) : rodzic_(rodzic) {}

    [[nodiscard]] std::optional<Waluta> sredniaL4(const QList<LiniaWykazu>& miesiace,
                                                  Waluta sredniaBrutto) override;
    [[nodiscard]] std::optional<Waluta> dniowka(const QList<LiniaWykazu>& miesiace, qint64 dni,
                                                Waluta stawkaDzienna) override;
    [[nodiscard]] std::optional<int> numerSkladnika(const OkresUrlopu& okres, int proponowany) override;

private:
    QWidget* rodzic_;
};

} // namespace tornel::payroll
