; A bubble pops, and a bright pluck rings after it.
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

instr Pop
  kFreq expon 420, p3, 1500
  kAmp transeg 0, 0.003, 0, 1, p3 - 0.003, -5, 0
  aPop oscili kAmp * p4, kFreq
  Place aPop, 0.5
endin

; p4 amplitude, p5 pitch in Hz, p6 pan: a short wooden bar, its partials dying one after the other
instr Pluck
  aEnv1 transeg 0, 0.002, 0, 1, p3 - 0.002, -6, 0
  aEnv2 transeg 0, 0.001, 0, 1, p3 * 0.5, -6, 0, p3, 0, 0
  aEnv3 transeg 0, 0.001, 0, 1, p3 * 0.2, -6, 0, p3, 0, 0
  aBar = oscili:a(aEnv1, p5) + oscili:a(aEnv2 * 0.45, p5 * 2.003) + oscili:a(aEnv3 * 0.3, p5 * 3.93)
  Place aBar * p4, p6
endin
</CsInstruments>
<CsScore>
i "Pop"   0     0.07 0.35
i "Pluck" 0.035 0.20 0.30 1174.66 0.40
i "Pluck" 0.080 0.26 0.30 1760.00 0.60
</CsScore>
</CsoundSynthesizer>
