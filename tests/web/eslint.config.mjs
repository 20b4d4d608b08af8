import js from "@eslint/js";
import globals from "globals";

export default [
    js.configs.recommended,
    { languageOptions: { globals: { ...globals.browser, ...globals.serviceworker, ...globals.node } },
        rules: { eqeqeq: "error", "no-shadow": "error", "no-var": "error", "prefer-const": "error", "no-implicit-globals": "error" } },
];
