// The packaged header declares what clang declares itself in this mode.
#pragma once
