# nix-build packaging/nix, in a checkout or in an unpacked tarball.
{ pkgs ? import <nixpkgs> { } }:
let
  # The changelog split at each release's heading, the versions being lists between the texts.
  versions = builtins.filter (line: builtins.isList line)
    (builtins.split "\n## ([0-9.]+) \\(" (builtins.readFile ../../CHANGELOG.md));
in
pkgs.stdenv.mkDerivation {
  pname = "tallyvane";
  version = builtins.head (builtins.head versions);
  src = pkgs.lib.cleanSource ../..;

  nativeBuildInputs = with pkgs; [ cmake ninja pkg-config qt6.qttools qt6.wrapQtAppsHook ];
  buildInputs = with pkgs; [
    boost
    icu
    libsecret
    qt6.qtbase
    qt6.qtdeclarative
    qt6.qtsvg
    qt6.qtwayland
    qt6Packages.qcoro
    simdjson
    xorg.libxcb
  ];

  # Only the desktop part needs Qt's plugins; under its own name, autostart would start the wrapper.
  dontWrapQtApps = true;
  postFixup = ''
    wrapQtApp $out/libexec/tallyvane/tallyvane-desktop --inherit-argv0
  '';

  meta = {
    description = "Quota monitor for Claude Code and Codex";
    license = with pkgs.lib.licenses; [ asl20 cc0 ];
    platforms = pkgs.lib.platforms.linux;
    mainProgram = "tallyvane";
  };
}
