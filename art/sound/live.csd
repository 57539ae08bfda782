; A short rising fanfare: three quick notes and a held chord of bright horns, with chimes on top.
<CsoundSynthesizer>
<CsInstruments>
sr = 88200
ksmps = 10
nchnls = 2
0dbfs = 1

opcode Place, 0, ai
  aIn, iPan xin
  outs aIn * cos(iPan * $M_PI_2), aIn * sin(iPan * $M_PI_2)
endop

; p4 amplitude, p5 pitch as a note number, p6 pan
instr Horn
  iFreq = cpsmidinn(p5)
  aEnv transeg 0, 0.012, 0, 1, 0.06, -2, 0.75, p3 - 0.112, 0, 0.6, 0.04, -2, 0
  kBright transeg 2, 0.03, 0, 7, p3 - 0.03, -3, 3
  aLeft vco2 0.5, iFreq * 1.003
  aRight vco2 0.5, iFreq * 0.997, 2, 0.35
  aHorn butterlp (aLeft + aRight) * aEnv, iFreq * kBright
  Place aHorn * p4, p6
endin

instr Chime
  iFreq = cpsmidinn(p5)
  aEnv transeg 0, 0.001, 0, 1, p3 - 0.001, -5, 0
  aChime = oscili:a(aEnv, iFreq) + oscili:a(aEnv * aEnv * 0.5, iFreq * 2.76) + oscili:a(aEnv ^ 3 * 0.25, iFreq * 5.4)
  Place aChime * p4, p6
endin
</CsInstruments>
<CsScore>
i "Horn"  0.00 0.11 0.30 67 0.40
i "Horn"  0.10 0.11 0.30 72 0.60
i "Horn"  0.20 0.11 0.30 76 0.40
i "Horn"  0.30 0.48 0.24 79 0.50
i "Horn"  0.30 0.48 0.16 72 0.25
i "Horn"  0.30 0.48 0.16 76 0.75
i "Chime" 0.00 0.30 0.12 79 0.45
i "Chime" 0.10 0.30 0.12 84 0.55
i "Chime" 0.20 0.30 0.12 88 0.45
i "Chime" 0.30 0.60 0.16 91 0.55
i "Chime" 0.38 0.50 0.08 96 0.35
</CsScore>
</CsoundSynthesizer>
