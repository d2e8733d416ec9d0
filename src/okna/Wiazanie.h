// Fields of a screen bound by a table: built, loaded, checked on leaving and collected in one place.
#pragma once
#include "okna/Pole.h"
#include "okna/SiatkaPol.h"
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <QHash>
#include <QObject>
#include <vector>

class QGroupBox;
class QLabel;
class QWidget;

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::okna {

/// Where the values of the fields come from and go to.
class ZrodloPol {
public:
    virtual ~ZrodloPol() = default;
    [[nodiscard]] virtual Wartosc czytaj(const Pole& pole) const = 0;
    virtual void zapisz(const Pole& pole, const Wartosc& wartosc) = 0;
    /// Whether what was collected from the field still waits here to be stored.
    [[nodiscard]] virtual bool czekaNaZapis(const Pole& /*pole*/) const { return false; }
};

/// The current rows of one or more table handles, chosen by the field's column.
class ZrodloWierszy final : public ZrodloPol {
public:
    ZrodloWierszy(std::initializer_list<Recordset*> tabele) : tabele_(tabele) {}

    /// Null for a table that stands on no row.
    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override;
    /// Sets the value in memory, in the form of the column's type. Throws `Blad` for a table that stands on
    /// no row.
    void zapisz(const Pole& pole, const Wartosc& wartosc) override;

private:
    [[nodiscard]] Recordset& tabela(const Pole& pole) const;
    std::vector<Recordset*> tabele_;
};

/// The fields of one screen. A name that no field has throws `std::out_of_range`.
///
/// A field that could not take what was typed says so beside itself until its next good value. Undo (Ctrl+Z)
/// in a field that was left brings back what it held before, also when that was stored at once.
///
/// A field whose value is not stored bears a mark (`ZnakZmiany`), also while the source keeps the value.
///
/// A value goes back to its source only if its field was changed, so what a field cannot show (the third and
/// fourth decimal, null against 0) stays as it was stored.
class Wiazanie : public QObject {
    Q_OBJECT
public:
    /// What a check makes of a text: the text to show, and what the field says beside it of the one that it
    /// did not take; empty for nothing.
    struct Sprawdzony {
        Sprawdzony(const QString& doPokazania, const QString& zdanie = {})
            : tekst(doPokazania), uwaga(zdanie) {}
        QString tekst;
        QString uwaga;
    };
    /// What a field does beyond its kind when it is left, also when nothing was typed: takes the text and the
    /// one it held on entry.
    using Sprawdzenie = std::function<Sprawdzony(const QString& tekst, const QString& przyWejsciu)>;

    explicit Wiazanie(ZrodloPol& zrodlo, QObject* rodzic = nullptr);

    /// Makes the fields in a titled group, in `kolumn` columns filled downwards.
    QGroupBox* grupa(const QString& tytul, const QList<Pole>& pola, int kolumn = 1,
                     BezPodpisu bezPodpisu = BezPodpisu::PodPolami);
    /// The same without frame and title.
    QWidget* siatka(const QList<Pole>& pola, int kolumn = 1, BezPodpisu bezPodpisu = BezPodpisu::PodPolami);

    /// A row of a table of fields: what it is about, and its fields from left to right; one without a name
    /// leaves its place empty.
    struct Rzad {
        QString podpis;
        QList<Pole> pola;
    };
    /// Makes the fields in a titled table under `naglowki`. A field is called by its row and column. Fields
    /// of a table take no further notes and are not hidden (`dolacz`, `ustawDopisek`, `pokaz`).
    QGroupBox* tabela(const QString& tytul, const QStringList& naglowki, const QList<Rzad>& rzedy);

    /// Shows the source's values as of another row: what was typed and not collected, what fields said of it
    /// and what undo would bring back is dropped.
    void wczytaj();
    /// Shows the source's values anew after they were computed or stored: what fields say and undo stay. A
    /// handler of `opuszczone` that calls `wczytaj` gets this too.
    void odswiez();
    /// Marks the fields whose values are not stored; to be called after the source has stored them.
    void odswiezZnaki();
    /// Empties all fields, as for a list without rows; nothing counts as changed.
    void czysc();
    /// Leaves the field in work, then writes all changed fields to the source.
    void zbierz();
    /// Does for the field in work, if something was typed into it, what leaving it does: a mnemonic or Enter
    /// acts without the focus moving.
    void zakoncz();
    /// Whether a field has had to say what it did not take only just now, in the same act of the clerk: what
    /// shows the fields must stay then, or nobody could read it.
    [[nodiscard]] bool wlasnieNieZrozumiano() const { return wlasnieNieZrozumiano_; }
    [[nodiscard]] bool jestZmiana() const;
    /// Locks or opens all fields that can be typed into.
    void blokuj(bool zablokowane);

    [[nodiscard]] QString tekst(const QString& nazwa) const;
    /// The field's value as `zbierz` would write it.
    [[nodiscard]] Wartosc wartosc(const QString& nazwa) const;
    /// Shows a text as if it had been typed: it counts as a change. `opuszczone` is not told.
    void ustawTekst(const QString& nazwa, const QString& tekst);
    void ustawPozycje(const QString& nazwa, const QList<Pozycja>& pozycje);
    void sprawdzaj(const QString& nazwa, Sprawdzenie sprawdzenie);

    /// The control itself, for focus, tool tip and the like.
    [[nodiscard]] QWidget* kontrolka(const QString& nazwa) const;
    void ustawPodpis(const QString& nazwa, const QString& podpis);
    /// Puts a widget of the screen's own, a button or a note, directly to the right of the field.
    void dolacz(const QString& nazwa, QWidget* widzet);
    /// A short note to the right of the field: the letters of its flags, the name of a component.
    void ustawDopisek(const QString& nazwa, const QString& dopisek);
    /// Shows or hides the named fields and closes the gaps. A field goes with the one whose caption it
    /// shares.
    void pokaz(const QHash<QString, bool>& widoczne);

signals:
    /// The clerk has changed something in the field.
    void zmienione(const QString& nazwa);
    /// A changed field was left; its text is in order, its value not yet in the source.
    void opuszczone(const QString& nazwa);

protected:
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    struct Kontrolka {
        Pole pole;
        QWidget* widzet = nullptr;
        QLabel* podpis = nullptr;
        QLabel* dopisek = nullptr;
        SiatkaPol* siatka = nullptr;
        int miejsce = 0;
        QString wczytany;
        QString przyWejsciu;
        std::optional<QString> przedZmiana; ///< what undo brings back
        Sprawdzenie sprawdzenie;
        bool sprawdzona = false; ///< since it was entered or last typed into
        bool zUwaga = false;
    };

    Kontrolka& nowa(const Pole& pole);
    void gotowa(Kontrolka& k);
    void dodaj(const Pole& pole, SiatkaPol& siatka);
    void podlacz(Kontrolka& k);
    void pokazTekst(Kontrolka& k, const QString& tekst);
    void pokazWszystkie();
    void zapomnij(Kontrolka& k);
    void oznacz(Kontrolka& k);
    void opusc(Kontrolka& k);
    void powiedz(Kontrolka& k, const QString& uwaga);
    [[nodiscard]] bool cofnij(Kontrolka& k);
    [[nodiscard]] bool zmieniona(const Kontrolka& k) const;
    [[nodiscard]] Kontrolka& znajdz(const QString& nazwa) const;

    ZrodloPol& zrodlo_;
    std::deque<Kontrolka> kontrolki_;
    QHash<QString, Kontrolka*> poNazwie_;
    QHash<QObject*, Kontrolka*> poWidzecie_;
    Kontrolka* wPracy_ = nullptr; ///< has the focus and may hold a text that is not yet in order
    bool mowiOOpuszczeniu_ = false;
    bool wlasnieNieZrozumiano_ = false;
};

} // namespace tornel::okna
