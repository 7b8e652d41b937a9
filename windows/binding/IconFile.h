#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace trelonit {

/// The bytes of an icon of Windows (.ico) with these pictures, which are square and at most 256
/// pixels wide: the largest compressed, the others as bit maps, which every reader knows.
QByteArray IconFile(const QList<QImage>& pictures);

}  // namespace trelonit
