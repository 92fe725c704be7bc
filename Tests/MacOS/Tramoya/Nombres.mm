#import <AppKit/AppKit.h>

// Constants whose values only tell them apart.

NSFontWeight const NSFontWeightRegular = 0;
NSFontWeight const NSFontWeightMedium = 0.23;
NSString* const NSAccessibilityButtonRole = @"AXButton";
NSString* const NSAccessibilityCheckBoxRole = @"AXCheckBox";
NSString* const NSAccessibilityRadioButtonRole = @"AXRadioButton";
NSString* const NSAccessibilitySearchFieldSubrole = @"AXSearchField";
