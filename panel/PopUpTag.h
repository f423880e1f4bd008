#pragma once

/// What the tags of pop-up buttons in the view resources say.
enum PopUpTag {
    /// Each title is also kept in the view's dictionary, under its choice: the items can be rebuilt
    /// from there.
    kTagTitlesInContent = 5,
    /// Each item gets the picture resource that is named after its choice.
    kTagPictures = 10,
};
