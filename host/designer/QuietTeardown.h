#pragma once

#include <QObject>

/// Cuts every connection from `owner`'s children to `owner`. Call it first in the destructor
/// of a widget whose slots listen to its own children: ~QWidget deletes the children after
/// the derived part is gone, and what they signal while they go would reach a half-destroyed
/// object.
inline void disconnectChildrenFrom(QObject& owner)
{
    for (QObject* child : owner.findChildren<QObject*>())
        child->disconnect(&owner);
}
