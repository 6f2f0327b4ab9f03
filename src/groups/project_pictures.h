/// The pictures of the project that property windows show.
#pragma once

#include "groups/sheet.h"

namespace quorvel::groups {

/// A file of resource/gfx. Null where there is none, or none that can be shown.
forms::PicturePtr gfxPicture(const Tools& tools, const QString& name);

/// Why a file of resource/gfx cannot be shown, a sentence; empty when it can.
QString pictureProblem(const Tools& tools, const QString& name);

/// The picture of an object: its file, or the drawings that stand for an object without one and
/// for a file that cannot be shown. Never null.
forms::PicturePtr objectPicture(const Tools& tools, const QString& name);

/// The picture of scene `number` as the store has it, or null. `onCanvas`: of the scene that is on
/// the canvas it is the picture that the canvas shows.
forms::PicturePtr scenePicture(const Tools& tools, int number, bool onCanvas);

/// Whether scene `number` names a picture whose file is gone. Of the scene that is in memory nobody
/// asks: the canvas shows what there is of it.
bool linkedPictureMissing(const Tools& tools, int number);

/// The icon of item `number`, or null.
forms::PicturePtr itemIcon(const Tools& tools, int number);

/// Mouse pointers as their lists count them: 0 is the ordinary one, 1 to 10 lead somewhere. The
/// game's own, or the one that stands for it.
forms::PicturePtr pointerPicture(const Tools& tools, int index);

}  // namespace quorvel::groups
