; A dull thud of a head on stone, then a spring that wobbles itself out.
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

instr Thud
  aEnv transeg 0, 0.003, 0, 1, p3 - 0.003, -6, 0
  kFreq transeg 260, 0.05, -4, 95, p3 - 0.05, 0, 65
  aBody oscili aEnv, kFreq
  aNoise rand 1, 0.4
  aSlap butterlp aNoise * aEnv ^ 2, 1400
  Place tanh(aBody * 1.8 + aSlap) * p4, 0.5
endin

; A buzzing reed whose pitch rises while its mouth opens and closes ever faster
instr Boing
  aEnv transeg 0, 0.012, 0, 1, p3 - 0.012, -2, 0
  kRate linseg 7, p3, 17
  kDepth transeg 1, p3, -1.5, 0.25
  kSwing oscili kDepth, kRate, -1, 0.25
  kFreq transeg 118, p3, 1, 176
  aReed vco2 1, kFreq * (1 + 0.07 * kSwing)
  kMouth = 850 * 2 ^ (1.15 * kSwing)
  aFirst butterbp aReed, kMouth, kMouth * 0.22
  aSecond butterbp aReed, kMouth * 2.6, kMouth * 0.4
  aBody butterlp aReed, 420
  aMove = 0.5 + 0.25 * a(kSwing)
  aBoing = (aFirst * 1.6 + aSecond * 0.7 + aBody * 0.45) * aEnv * p4
  outs aBoing * (1.25 - aMove), aBoing * (0.25 + aMove)
endin
</CsInstruments>
<CsScore>
i "Thud"  0    0.24 0.42
i "Boing" 0.06 0.74 0.75
</CsScore>
</CsoundSynthesizer>
