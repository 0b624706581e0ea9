#pragma once
// Fixed positions with anchored edges, in place of a layout: each control stands where it was put and its anchored
// edges keep their distance to the container's edges when the container is resized. Main thread; lives as long as
// the container, which owns it.

#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>

enum class Edge { Left = 1, Top = 2, Right = 4, Bottom = 8 };
Q_DECLARE_FLAGS(Edges, Edge)
Q_DECLARE_OPERATORS_FOR_FLAGS(Edges)

class Anchors : public QObject {
 public:
  /// `designSize` is the size of the container to which the positions refer.
  Anchors(QWidget* container, QSize designSize);

  /// Puts a child of the container at `at`. Opposite edges both anchored stretch the control; with neither of a pair
  /// it keeps to the left or the top.
  void place(QWidget* control, QRect at, Edges anchored);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Placed {
    QPointer<QWidget> control;
    QRect at;
    Edges anchored;
  };
  void arrange(const Placed& placed) const;

  QWidget* m_container;
  QSize m_designSize;
  QList<Placed> m_placed;
};

/// The place of a control designed at `at` when its container has grown by `growth`.
[[nodiscard]] QRect anchoredGeometry(QRect at, Edges anchored, QSize growth);
