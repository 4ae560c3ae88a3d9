// The tables of an inspector and of its lists of values, for screen readers and other assistive programs. Like
// Qt's own, but cells can be pressed: Qt's cells offer no such action, and their classes are not exported.
#pragma once

namespace tiv::properties {

// For every PropertyView and NamedValueEditor that is made afterwards.
void installAccessibleCells();

}  // namespace tiv::properties
