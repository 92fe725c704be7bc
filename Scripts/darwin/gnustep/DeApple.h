// What GNUstep's headers lack of Apple's, for checks on Linux alone; no macOS build ever sees this file. Each
// declaration was written down from Apple's public developer documentation of the class or constant it names
// (headings below); where GNUstep declares a class in an older form, that form is kept out and declared here.
// Nullability stands where the documentation shows an optional or a non-optional type.
#pragma once

#define _GNUstep_H_NSPopover
#define _NSLayoutAnchor_h_GNUSTEP_GUI_INCLUDE
#import <Foundation/Foundation.h>

#undef NS_UNAVAILABLE
#define NS_UNAVAILABLE __attribute__((unavailable))

#pragma clang assume_nonnull begin

// Documentation: AppKit, NSLayoutAnchor, NSLayoutXAxisAnchor, NSLayoutYAxisAnchor, NSLayoutDimension
@class NSLayoutConstraint, NSLayoutXAxisAnchor, NSLayoutYAxisAnchor, NSLayoutDimension;
@interface NSLayoutAnchor<__covariant AnchorType> : NSObject
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor;
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor constant:(CGFloat)c;
- (NSLayoutConstraint*)constraintGreaterThanOrEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor
                                                   constant:(CGFloat)c;
- (NSLayoutConstraint*)constraintLessThanOrEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor
                                                constant:(CGFloat)c;
@end
@interface NSLayoutXAxisAnchor : NSLayoutAnchor <NSLayoutXAxisAnchor*>
@end
@interface NSLayoutYAxisAnchor : NSLayoutAnchor <NSLayoutYAxisAnchor*>
@end
@interface NSLayoutDimension : NSLayoutAnchor <NSLayoutDimension*>
- (NSLayoutConstraint*)constraintEqualToConstant:(CGFloat)c;
@end

// Documentation: AppKit, NSPopover.Behavior
typedef NSInteger NSPopoverBehavior;

#pragma clang assume_nonnull end
#import <AppKit/AppKit.h>
#pragma clang assume_nonnull begin

// Documentation: Dispatch, dispatch_get_main_queue, dispatch_async
typedef NSObject* dispatch_queue_t;
extern "C" dispatch_queue_t dispatch_get_main_queue(void);
extern "C" void dispatch_async(dispatch_queue_t queue, void (^block)(void));

// Documentation: Objective-C Runtime, sel_isEqual
extern "C" BOOL sel_isEqual(SEL lhs, SEL rhs);

// Documentation: AppKit, NSEvent.ModifierFlags, NSEvent.EventType, NSEvent.EventTypeMask
enum : NSEventModifierFlags {
  NSEventModifierFlagCapsLock = 1 << 16,
  NSEventModifierFlagShift = 1 << 17,
  NSEventModifierFlagControl = 1 << 18,
  NSEventModifierFlagOption = 1 << 19,
  NSEventModifierFlagCommand = 1 << 20,
  NSEventModifierFlagNumericPad = 1 << 21,
  NSEventModifierFlagHelp = 1 << 22,
  NSEventModifierFlagFunction = 1 << 23,
  NSEventModifierFlagDeviceIndependentFlagsMask = 0xffff0000UL,
};
enum : NSEventType {
  NSEventTypeLeftMouseDown = 1,
  NSEventTypeLeftMouseUp = 2,
  NSEventTypeRightMouseDown = 3,
  NSEventTypeRightMouseUp = 4,
  NSEventTypeKeyDown = 10
};
enum : NSEventMask {
  NSEventMaskLeftMouseDown = 1 << 1,
  NSEventMaskLeftMouseUp = 1 << 2,
  NSEventMaskRightMouseDown = 1 << 3,
  NSEventMaskRightMouseUp = 1 << 4,
  NSEventMaskOtherMouseDown = 1 << 25
};
// Documentation: AppKit, NSEvent
@interface NSEvent (DeApple)
@property(getter=isARepeat, readonly) BOOL ARepeat;
- (nullable NSString*)charactersByApplyingModifiers:(NSEventModifierFlags)modifiers;
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

// Documentation: AppKit, NSMenu
@interface NSMenu (DeApple)
- (void)removeAllItems;
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem*)item
                      atLocation:(NSPoint)location
                          inView:(nullable NSView*)view;
@end

// Documentation: AppKit, NSCompositingOperation, NSBezierPath.LineCapStyle, NSBezierPath.LineJoinStyle
enum : NSUInteger { NSCompositingOperationSourceOver = 2 };
constexpr NSLineCapStyle NSLineCapStyleRound = static_cast<NSLineCapStyle>(1);
constexpr NSLineJoinStyle NSLineJoinStyleRound = static_cast<NSLineJoinStyle>(1);
// Documentation: Foundation, NSRectEdge
enum : NSUInteger { NSRectEdgeMinY = 1 };

// Documentation: Foundation, UserDefaults
@interface NSUserDefaults (DeApple)
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suitename;
@end

// Documentation: Foundation, NSAttributedString.Key
typedef NSString* NSAttributedStringKey;

// Documentation: Foundation, FileManager
@interface NSFileManager (DeApple)
@property(readonly, copy) NSURL* homeDirectoryForCurrentUser;
@end

// Documentation: UniformTypeIdentifiers, UTType
@interface UTType : NSObject
+ (nullable UTType*)typeWithIdentifier:(NSString*)identifier;
@end

// Documentation: ServiceManagement, SMAppService
typedef NSInteger SMAppServiceStatus;
enum : SMAppServiceStatus { SMAppServiceStatusEnabled = 1 };
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
@end

// Documentation: AppKit, NSWorkspace
extern NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
@interface NSWorkspace (DeApple)
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readonly) BOOL accessibilityDisplayShouldReduceTransparency;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (nullable NSURL*)URLForApplicationToOpenContentType:(UTType*)contentType;
@end

// Documentation: AppKit, NSPasteboard
@interface NSPasteboard (DeApple)
- (NSInteger)clearContents;
@end

// Documentation: QuartzCore, CACurrentMediaTime, CALayer
extern "C" double CACurrentMediaTime(void);
@interface CALayer : NSObject
@property(nullable) CGColorRef backgroundColor;
@property(getter=isOpaque) BOOL opaque;
@end

// Documentation: AppKit, NSColor
@interface NSColor (DeApple)
+ (NSColor*)colorWithName:(nullable NSString*)colorName
          dynamicProvider:(NSColor* (^)(NSAppearance* appearance))dynamicProvider;
@property(readonly) CGColorRef CGColor;
@end

// Documentation: AppKit, NSFont
@interface NSFont (DeApple)
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
@end

// Documentation: AppKit, NSImage, NSImage.SymbolConfiguration
@interface NSImage (DeApple)
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (void)setTemplate:(BOOL)isTemplate;
@end
@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
@end

// Documentation: AppKit, NSAccessibilityProtocol
@interface NSView (AccesibilidadDeApple)
@property(getter=isAccessibilityElement) BOOL accessibilityElement;
@property(getter=isAccessibilitySelected) BOOL accessibilitySelected;
@property(nullable, copy) NSString* accessibilityRole;
@property(nullable, copy) NSString* accessibilitySubrole;
@property(nullable, copy) NSString* accessibilityLabel;
@property(nullable, copy) NSString* accessibilityHelp;
@property(nullable, strong) id accessibilityValue;
@end

// Documentation: AppKit, NSView
extern CGFloat const NSViewNoIntrinsicMetric;
@interface NSView (DeApple)
@property(nullable, copy) NSUserInterfaceItemIdentifier identifier;
@property BOOL translatesAutoresizingMaskIntoConstraints;
@property(readonly) NSLayoutXAxisAnchor* leadingAnchor;
@property(readonly) NSLayoutXAxisAnchor* trailingAnchor;
@property(readonly) NSLayoutXAxisAnchor* centerXAnchor;
@property(readonly) NSLayoutYAxisAnchor* topAnchor;
@property(readonly) NSLayoutYAxisAnchor* bottomAnchor;
@property(readonly) NSLayoutYAxisAnchor* centerYAnchor;
@property(readonly) NSLayoutYAxisAnchor* firstBaselineAnchor;
@property(readonly) NSLayoutDimension* widthAnchor;
@property(readonly) NSLayoutDimension* heightAnchor;
@property(readonly) NSSize fittingSize;
@property(readonly) NSRect focusRingMaskBounds;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property(nullable, strong) NSAppearance* appearance;
- (void)setContentCompressionResistancePriority:(NSLayoutPriority)priority
                                 forOrientation:(NSLayoutConstraintOrientation)orientation;
- (void)drawFocusRingMask;
@end

// Documentation: AppKit, NSLayoutConstraint
@interface NSLayoutConstraint (DeApple)
@property CGFloat constant;
@end

// Documentation: AppKit, NSControl, NSTextField, NSText, NSButton, NSImageView
constexpr NSButtonType NSButtonTypeMomentaryChange = static_cast<NSButtonType>(5);
@interface NSControl (DeApple)
@property BOOL usesSingleLineMode;
@property NSLineBreakMode lineBreakMode;
@end
@interface NSTextField (DeApple)
+ (instancetype)labelWithString:(NSString*)stringValue;
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue;
@property CGFloat preferredMaxLayoutWidth;
@property(getter=isAutomaticTextCompletionEnabled) BOOL automaticTextCompletionEnabled;
@end
@interface NSButton (DeApple)
@property(nullable, copy) NSColor* contentTintColor;
@end
@interface NSImageView (DeApple)
@property(nullable, copy) NSColor* contentTintColor;
@property(nullable, copy) NSImageSymbolConfiguration* symbolConfiguration;
@end

// Documentation: AppKit, NSStackView
typedef NSInteger NSStackViewGravity;
enum : NSStackViewGravity { NSStackViewGravityTop = 1 };
@interface NSStackView : NSView
+ (instancetype)stackViewWithViews:(NSArray<NSView*>*)views;
@property NSUserInterfaceLayoutOrientation orientation;
@property NSLayoutAttribute alignment;
@property CGFloat spacing;
@property NSEdgeInsets edgeInsets;
@property(readonly, copy) NSArray<NSView*>* views;
- (void)setViews:(NSArray<NSView*>*)views inGravity:(NSStackViewGravity)gravity;
- (void)addArrangedSubview:(NSView*)view;
- (void)setCustomSpacing:(CGFloat)spacing afterView:(NSView*)view;
@end

// Documentation: AppKit, NSScrollView
@interface NSScrollView (DeApple)
@property BOOL automaticallyAdjustsContentInsets;
@property NSScrollerStyle scrollerStyle;
@end

// Documentation: AppKit, NSTableView, NSTableRowView, NSTableCellView
typedef NSInteger NSTableViewStyle;
enum : NSTableViewStyle { NSTableViewStylePlain = 4 };
@interface NSTableRowView : NSView
@property(getter=isSelected) BOOL selected;
@property(getter=isEmphasized) BOOL emphasized;
- (void)drawBackgroundInRect:(NSRect)dirtyRect;
- (void)drawSelectionInRect:(NSRect)dirtyRect;
- (nullable id)viewAtColumn:(NSInteger)column;
@end
@interface NSTableCellView : NSView
@property(nullable, assign) NSTextField* textField;
@end
@interface NSTableView (DeApple)
@property NSTableViewStyle style;
@property NSTableViewColumnAutoresizingStyle columnAutoresizingStyle;
- (nullable __kindof NSView*)makeViewWithIdentifier:(NSUserInterfaceItemIdentifier)identifier
                                              owner:(nullable id)owner;
- (NSInteger)rowForView:(NSView*)view;
- (void)enumerateAvailableRowViewsUsingBlock:(void (^)(__kindof NSTableRowView* rowView,
                                                       NSInteger row))handler;
@end

// Documentation: AppKit, NSVisualEffectView.Material
enum : NSVisualEffectMaterial { NSVisualEffectMaterialHUDWindow = 13 };

// Documentation: AppKit, NSStatusItem
@interface NSStatusItem (DeApple)
@property(nullable, readonly, strong) NSStatusBarButton* button;
@end

// Documentation: AppKit, NSViewController
@interface NSViewController (DeApple)
- (void)viewDidLoad;
- (void)viewWillAppear;
- (void)viewDidAppear;
- (void)viewWillDisappear;
- (void)viewDidDisappear;
@end

// Documentation: AppKit, NSPopover
enum : NSPopoverBehavior { NSPopoverBehaviorTransient = 1 };
@protocol NSPopoverDelegate <NSObject>
@optional
- (void)popoverWillClose:(NSNotification*)notification;
@end
@interface NSPopover : NSResponder
@property(nullable, weak) id<NSPopoverDelegate> delegate;
@property NSSize contentSize;
@property NSPopoverBehavior behavior;
@property(nullable, strong) NSAppearance* appearance;
@property(nullable, strong) NSViewController* contentViewController;
@property(readonly, getter=isShown) BOOL shown;
- (void)performClose:(nullable id)sender;
- (void)showRelativeToRect:(NSRect)positioningRect
                    ofView:(NSView*)positioningView
             preferredEdge:(NSRectEdge)preferredEdge;
@end

// Documentation: AppKit, NSMenuItem
@interface NSMenuItem (DeApple)
@property(class, readonly) NSMenuItem* separatorItem;
@end

// Documentation: AppKit, NSWindow
typedef NSInteger NSWindowTitleVisibility;
enum : NSWindowTitleVisibility { NSWindowTitleHidden = 1 };
@interface NSWindow (DeApple)
@property BOOL titlebarAppearsTransparent;
@property NSWindowTitleVisibility titleVisibility;
@property(nullable, strong) NSAppearance* appearance;
@end

// Documentation: AppKit, NSApplication, NSApplicationDelegate, UndoManager's menu actions in NSResponder
@interface NSApplication (DeApple)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
@end
@interface NSResponder (DeApple)
- (void)undo:(nullable id)sender;
- (void)redo:(nullable id)sender;
@end

#pragma clang assume_nonnull end
