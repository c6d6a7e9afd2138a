"""UIKit's classes in the pretend process: views in trees, fonts, colors and pictures."""

from typing import Any

from emulator.foundation import NSObject, NSString
from emulator.objects import Instance, ObjcClass, answer, class_message, message, prop, shared

ZERO_RECT = (0.0, 0.0, 0.0, 0.0)


class UIColor(NSObject):
    """A color, known by how it was asked for."""

    components: tuple[float, ...] = ()

    @class_message("colorWithRed:green:blue:alpha:", "@@:gggg")
    @staticmethod
    def with_rgb(cls: ObjcClass, *components: float) -> Instance:
        return cls.runtime.autoreleased(cls.runtime.new("UIColor", components=components))

    clear_color = shared("clearColor")
    black_color = shared("blackColor")

    white_color = shared("whiteColor")


class UIFont(NSObject):
    """A font of a size in points."""

    pointSize = prop("g", 17.0)

    @class_message("systemFontOfSize:", "@@:g")
    @staticmethod
    def system(cls: ObjcClass, size: float) -> Instance:
        return cls.runtime.autoreleased(cls.runtime.new("UIFont", pointSize=size))

    @class_message("fontWithName:size:", "@@:@g")
    @staticmethod
    def named(cls: ObjcClass, name: NSString, size: float) -> Instance:
        return cls.runtime.autoreleased(cls.runtime.new("UIFont", pointSize=size))


class UIImage(NSObject):
    """A picture, known by its file."""

    path = ""
    caps: tuple[float, ...] = ()

    @class_message("imageWithContentsOfFile:", "@@:@")
    @staticmethod
    def with_file(cls: ObjcClass, path: NSString) -> Instance:
        return cls.runtime.autoreleased(cls.runtime.new("UIImage", path=path.text))

    @message("resizableImageWithCapInsets:", "@@:{UIEdgeInsets}")
    def resizable(self, caps: tuple[float, ...]) -> Instance:
        made: Instance = self.runtime.new("UIImage", path=self.path, caps=caps)
        return self.runtime.autoreleased(made)


class UIScreen(NSObject):
    """The screen."""

    main_screen = shared("mainScreen")

    @message("bounds", "{CGRect}@:")
    def bounds(self: Instance) -> tuple[float, ...]:
        return (0.0, 0.0, 320.0, 480.0 if self.runtime.world.short_screen else 568.0)


class CALayer(NSObject):
    """What a view is drawn on."""


class UIView(NSObject):
    """A view in a tree of views; frames are (x, y, width, height) in points."""

    frame = prop("{CGRect}", ZERO_RECT)
    bounds = prop("{CGRect}", ZERO_RECT)
    tag = prop("l", 0)
    hidden = prop("c", False)
    backgroundColor = prop("@")
    superview = prop("@")
    layer = prop("@")

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        super().__init__(objc_class, address)
        self.children: list[UIView] = []
        self.layer = self.runtime.new("CALayer")

    @message("initWithFrame:", "@@:{CGRect}")
    def init_frame(self, frame: tuple[float, ...]) -> Instance:
        self.frame = frame
        return self

    @message("subviews", "@@:")
    def subviews(self) -> Instance:
        made: Instance = self.runtime.new("NSArray", items=list(self.children))
        return self.runtime.autoreleased(made)

    @message("addSubview:", "v@:@")
    def add_subview(self, view: "UIView | None") -> None:
        if view is not None:
            self.add(view)

    @message("removeFromSuperview", "v@:")
    def remove(self) -> None:
        self.superview.children.remove(self)
        self.superview = None
        self.runtime.release(self)

    @message("bringSubviewToFront:", "v@:@")
    def bring_to_front(self, view: "UIView") -> None:
        self.children.sort(key=lambda child: child is view)

    view_with_tag = answer("viewWithTag:", "@@:l", lambda self, tag: self.find(tag))
    layout_subviews = answer("layoutSubviews", "v@:", lambda self: None)

    @message("layoutSublayersOfLayer:", "v@:@")
    def layout_sublayers(self, layer: Any) -> None:
        # Nothing keeps it from being sent again while the view is laid out.
        self.runtime.send(self, "layoutSubviews")

    def add(self, view: "UIView") -> None:
        """Makes a view a child of this one, which holds it."""
        self.runtime.retain(view)
        self.children.append(view)
        view.superview = self

    def find(self, tag: int) -> "UIView | None":
        """Returns the first view of a tag in this tree."""
        if self.tag == tag:
            return self
        found = (child.find(tag) for child in self.children)
        return next((view for view in found if view is not None), None)


class UILabel(UIView):
    """A view that shows a text."""

    text = prop("@")
    font = prop("@")
    textColor = prop("@")
    textAlignment = prop("l", 0)
    attributedText = prop("@")


class UIImageView(UIView):
    """A view that shows a picture."""

    image = prop("@")


class UIButton(UIView):
    """A button; `actions` has (target, selector, events)."""

    titleLabel = prop("@")
    titleEdgeInsets = prop("{UIEdgeInsets}", ZERO_RECT)

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        super().__init__(objc_class, address)
        self.actions: list[tuple[Any, str, int]] = []
        self.titles: dict[int, str] = {}
        self.backgrounds: dict[int, tuple[str, tuple[float, ...]]] = {}
        self.titleLabel = self.runtime.new("UILabel")

    @class_message("buttonWithType:", "@@:l")
    @staticmethod
    def with_type(cls: ObjcClass, kind: int) -> Instance:
        return cls.runtime.autoreleased(cls.runtime.make(cls))

    @message("setTitle:forState:", "v@:@L")
    def set_title(self, title: NSString, state: int) -> None:
        self.titles[state] = title.text

    @message("setTitleColor:forState:", "v@:@L")
    def set_title_color(self, color: Any, state: int) -> None:
        self.title_color = color

    @message("setBackgroundImage:forState:", "v@:@L")
    def set_background(self, image: UIImage, state: int) -> None:
        self.backgrounds[state] = (image.path, image.caps)

    @message("addTarget:action:forControlEvents:", "v@:@:L")
    def add_target(self, target: Any, action: str, events: int) -> None:
        self.actions.append((target, action, events))


class UIScrollView(UIView):
    """A view whose content moves."""

    contentOffset = prop("{CGPoint}", (0.0, 0.0))
    contentInset = prop("{UIEdgeInsets}", ZERO_RECT)


class UITableView(UIScrollView):
    """A table; `reloads` counts."""

    reloads = 0

    @message("reloadData", "v@:")
    def reload(self) -> None:
        self.reloads += 1


KINDS: list[type[Instance]] = [
    UIColor,
    UIFont,
    UIImage,
    UIScreen,
    CALayer,
    UIView,
    UILabel,
    UIImageView,
    UIButton,
    UIScrollView,
    UITableView,
]
