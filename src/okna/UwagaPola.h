// What a field says of itself: a frame around it and a sentence beside it.
#pragma once
#include "common/Przestrzenie.h"
#include <QLabel>
#include <QPointer>

namespace tornel::okna {

/// The sentence floats over the screen, so that nothing moves when it comes and goes, and never covers the
/// field that has the focus. It goes with its field when a tab is changed.
class UwagaPola : public QLabel {
    Q_OBJECT
public:
    /// Frames the field and shows the sentence, which is the field's accessible description too. An empty
    /// sentence takes both away.
    static void ustaw(QWidget& pole, const QString& zdanie);
    /// The sentence that the field shows, empty for none.
    [[nodiscard]] static QString zdanie(const QWidget& pole);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    UwagaPola(QWidget& pole, QWidget& strona);
    [[nodiscard]] static UwagaPola* uwaga(const QWidget& pole);
    void umiesc();
    [[nodiscard]] QPoint miejsce() const;

    QPointer<QWidget> pole_;
};

} // namespace tornel::okna
