// The one base of all screens and dialogs: closing, keys, what is remembered of a window, and what becomes of
// changes that are not stored.
#pragma once
#include "common/Rozmowa.h"
#include <QDialog>

class QLabel;
class QSplitter;

namespace tornel::okna {

/// What Enter does in a window's fields: presses the default button, or goes to the next field.
enum class PoEnterze { PrzyciskDomyslny, NastepnePole };

/// A window that remembers its size, place, splitters, columns and marked tabs (`pamiecOkien`). Whatever
/// closes it, a button, Escape or the window's cross, comes through `done`, which asks `moznaZamknac` first.
class Okno : public QDialog {
    Q_OBJECT
public:
    void done(int wynik) override;

    /// Before an action is undone: what is not stored is stored or dropped. False keeps everything as it is.
    [[nodiscard]] virtual bool przygotujCofniecie() { return true; }

protected:
    /// `nazwa`: objectName of the screen, by which it is remembered and has its page of the handbook.
    explicit Okno(const QString& nazwa, QWidget* rodzic = nullptr,
                  PoEnterze poEnterze = PoEnterze::PrzyciskDomyslny);

    /// False keeps the window open.
    [[nodiscard]] virtual bool moznaZamknac() { return true; }
    /// The handles were read anew: the screen shows its current row again.
    virtual void pokazPonownie() {}
    /// Whether Ctrl+Z and Ctrl+Y undo actions here, outside a field; not where a window is a part of an
    /// action.
    [[nodiscard]] virtual bool cofaCzynnosci() const { return false; }
    /// An action was undone or made again and the handles were read anew: rows may be new or gone, so lists
    /// are filled again, too.
    virtual void wczytajPonownie() { pokazPonownie(); }
    /// Where Enter leads from a field.
    virtual void nastepnePole() { focusNextChild(); }

    /// `lewa` at the left, `szerokosc` pixels wide until the clerk moves the border, and `prawa`, which takes
    /// the rest.
    [[nodiscard]] QSplitter* dzielnik(QWidget* lewa, int szerokosc, QWidget* prawa);

    /// Stores what the screen holds, without closing or asking. False if it was refused.
    [[nodiscard]] virtual bool zapiszTeraz() { return przygotujCofniecie(); }
    /// Binds the keys of the table (`Klawisze`) that need nothing but the window itself; called once, before
    /// it is first shown, when everything stands in it.
    virtual void podlaczKlawisze();

    void showEvent(QShowEvent* zdarzenie) override;
    void closeEvent(QCloseEvent* zdarzenie) override;
    void keyPressEvent(QKeyEvent* zdarzenie) override;

    /// Ctrl+S and Ctrl+Enter of a screen that stores.
    void podlaczZapis();

private:
    void odczytajDane();

    PoEnterze poEnterze_;
    bool pokazane_ = false;
};

/// What becomes of changes when their screen is closed: they are stored without asking, or the clerk is asked
/// to store them, to drop them, or to stay.
enum class Zamykanie { Zapis, Pytanie };

/// A screen whose fields hold changes until they are stored. One policy for a failure: it is told, the clerk
/// may close without storing, and else everything typed stays.
class OknoEdycji : public Okno {
    Q_OBJECT
public:
    [[nodiscard]] bool przygotujCofniecie() override { return rozstrzygnijZmiany(); }

protected:
    [[nodiscard]] bool cofaCzynnosci() const override { return true; }
    [[nodiscard]] bool zapiszTeraz() override;
    void podlaczKlawisze() override;
    OknoEdycji(const QString& nazwa, Rozmowa& rozmowa, Zamykanie zamykanie, QWidget* rodzic = nullptr,
               PoEnterze poEnterze = PoEnterze::NastepnePole);

    /// Whether something is not stored, what is being typed included.
    [[nodiscard]] virtual bool jestZmiana() const = 0;
    /// Leaves the field in work and stores. False if that was refused, after a message, or if a field has
    /// just had to say that it did not understand what was typed; throws `Blad` on a failure.
    [[nodiscard]] virtual bool zapiszZmiany() = 0;
    virtual void porzucZmiany() = 0;
    struct PytanieOZmiany {
        QString tekst;
        QString tytul;
    };
    /// The question of `Zamykanie::Pytanie`.
    [[nodiscard]] virtual PytanieOZmiany pytanieOZmiany() const {
        return {QStringLiteral("Czy zapisać zmiany ?"), QStringLiteral("Pytanie")};
    }

    /// The line in which the screen says which way it saves (`sposob`, a sentence), and that something waits
    /// for it. The caller places it.
    [[nodiscard]] QLabel* etykietaZmian(const QString& sposob);
    /// Tells in the title and in `etykietaZmian` whether something is not stored; to be called whenever that
    /// may have changed.
    void pokazZmiany();

    /// What a button does that says it drops the changes: closes at once, the field in work not even left.
    void zamknijBezZapisu();

    /// Stores or drops what was changed, as the screen's way is; false when the screen has to stay. Throws
    /// `Blad`.
    [[nodiscard]] bool rozstrzygnijZmiany();
    [[nodiscard]] bool moznaZamknac() override;
    [[nodiscard]] Rozmowa& rozmowa() { return rozmowa_; }

private:
    Rozmowa& rozmowa_;
    Zamykanie zamykanie_;
    QLabel* labZmiana_ = nullptr;
    QString sposobZapisu_;
    bool bezZapisu_ = false;
};

} // namespace tornel::okna
