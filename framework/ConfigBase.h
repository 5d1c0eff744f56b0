#pragma once

// Host configuration object. Plug-ins receive it through the *Ex entry points and never dereference it.
class ConfigBase;
