#import "DeApple.h"
