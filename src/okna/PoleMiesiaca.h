// The two fields that choose a month: its name and its year.
#pragma once
#include "common/Przestrzenie.h"
#include <QDate>
#include <QString>
#include <QWidget>

class QComboBox;
class QSpinBox;

namespace tornel::okna {

/// What the two fields are called where a dialog has more than one such pair.
struct NazwyPolMiesiaca {
    QString koncowka = {}; ///< behind the objectNames
    QString mies = QStringLiteral("&Miesiąc:");
    QString rok = QStringLiteral("&Rok:");
};

class PoleMiesiaca : public QWidget {
    Q_OBJECT
public:
    static constexpr int kPierwszyRok = 1990;
    static constexpr int kOstatniRok = 2099;

    /// `wstepna`: any day of the month that is proposed; January of the first year for an invalid one.
    explicit PoleMiesiaca(QDate wstepna, QWidget* rodzic = nullptr, const NazwyPolMiesiaca& nazwy = {});

    [[nodiscard]] QDate pierwszyDzien() const;

private:
    QComboBox* cboMies_;
    QSpinBox* spnRok_;
};

} // namespace tornel::okna
